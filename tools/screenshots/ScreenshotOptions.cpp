#include "ScreenshotOptions.h"

#include <algorithm>

bool ScreenshotOptions::wantsAny(const QStringList &candidates) const
{
    return std::any_of(candidates.begin(), candidates.end(),
                       [this](const QString &name) { return wants(name); });
}

ScreenshotOptions screenshotOptionsFromEnvironment()
{
    const auto text = [](const char *name) { return qEnvironmentVariable(name); };
    const auto list = [&](const char *name) { return text(name).split(u' ', Qt::SkipEmptyParts); };
    ScreenshotOptions options;
    options.story = text("MERIDAX_SCREENSHOTS_STORY");
    options.pictureFolder = text("MERIDAX_SCREENSHOTS_FOLDER");
    options.cameraTool = text("SIMCAM_TOOL");
    options.catalogueFolder = text("MERIDAX_SCREENSHOTS_CATALOGUES");
    options.size = text("MERIDAX_SCREENSHOTS_SIZE");
    options.themes = list("MERIDAX_SCREENSHOTS_THEMES");
    options.languages = list("MERIDAX_SCREENSHOTS_LANGUAGES");
    options.names = list("MERIDAX_SCREENSHOTS_NAMES");
    options.forManual = qEnvironmentVariableIsSet("MERIDAX_SCREENSHOTS_MANUAL");
    return options;
}
