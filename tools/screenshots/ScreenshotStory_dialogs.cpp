// Settings, information and the forms that go to the support.

#include "ScreenshotStory.h"

using namespace Qt::StringLiterals;

void ScreenshotStory::settings()
{
    if (!wants({u"settings"_s, u"settings-end"_s, u"settings-help"_s, u"languages"_s,
                u"screenshot-folder"_s}))
        return;
    openSettings();
    takeWhole(u"settings"_s, m_studio.scene().item(u"settingsView"_s),
              {.parts = {u"settingsPanel"_s}});
    takeHelp(u"settings-help"_s, m_studio.scene().item(u"rememberCollapsedSections"_s));
    if (wants({u"languages"_s})) {
        openList(u"language"_s);
        take(u"languages"_s);
        closeList(u"settingsPanel"_s, u"settingsHeader"_s);
    }
    if (wants({u"screenshot-folder"_s})) {
        click(u"screenshotFolderButton"_s);
        QObject &dialog = m_studio.scene().object(u"screenshotFolderDialog"_s);
        waitFor(u"the folder dialog"_s, [&] { return dialog.property("visible").toBool(); });
        m_pointer.leave();
        take(u"screenshot-folder"_s, {.foreign = true});
        close(u"screenshotFolderDialog"_s);
    }
    close(u"settingsPanel"_s);
}

void ScreenshotStory::information()
{
    if (!wants({u"about"_s, u"terms-of-use"_s, u"privacy"_s, u"release-history"_s}))
        return;
    openSettings();
    click(u"aboutButton"_s);
    waitOpened(u"aboutDialog"_s);
    close(u"settingsPanel"_s);
    take(u"about"_s, {.parts = {u"aboutDialog"_s}});
    for (const auto &[button, name] : {std::pair{u"eulaButton"_s, u"terms-of-use"_s},
                                       std::pair{u"privacyButton"_s, u"privacy"_s}}) {
        click(u"aboutDialog"_s, button);
        waitOpened(u"legalTextDialog"_s);
        take(name);
        close(u"legalTextDialog"_s);
    }
    click(u"aboutDialog"_s, u"whatsNewButton"_s);
    waitOpened(u"whatsNewDialog"_s);
    take(u"release-history"_s);
    close(u"whatsNewDialog"_s);
}

void ScreenshotStory::bugReport()
{
    if (!wants({u"bug-report"_s, u"bug-report-filled"_s, u"bug-report-filled-end"_s,
                u"bug-report-sent"_s, u"categories"_s, u"log-preview"_s, u"screenshot-file"_s}))
        return;
    Scene &scene = m_studio.scene();
    openSettings();
    click(u"settingsPanel"_s, u"bugButton"_s);
    waitClosed(u"settingsPanel"_s);
    waitOpened(u"bugReportDialog"_s);
    take(u"bug-report"_s, {.parts = {u"bugReportDialog"_s}});
    if (wants({u"categories"_s})) {
        openList(u"categoryBox"_s);
        take(u"categories"_s);
        closeList(u"bugReportDialog"_s, u"titleLabel"_s);
    }
    scene.item(u"titleField"_s).setProperty("text", u"Sektor springt nach der dritten Messung"_s);
    scene.item(u"descriptionArea"_s, u"area"_s)
        .setProperty("text", u"1. Kamera starten\n2. Kalibrierung mit acht Positionen\n3. Nach der "
                             "dritten Messung zeigt der Sektor wieder nach rechts oben."_s);
    QObject &dialog = scene.object(u"bugReportDialog"_s);
    dialog.setProperty("selectedCategory", u"Workflow"_s);
    dialog.setProperty("screenshotFileName", u"meridax_2026-10-03_21-14-05_Sektor.png"_s);
    QQuickItem &form = scene.item(u"bugReportDialog"_s, u"formView"_s);
    takeWhole(u"bug-report-filled"_s, form);
    scroll(form, form.property("contentHeight").toDouble());
    if (wants({u"log-preview"_s})) {
        click(u"previewButton"_s);
        waitOpened(u"logPreview"_s);
        take(u"log-preview"_s, {.foreign = true});
        close(u"logPreview"_s);
    }
    if (wants({u"screenshot-file"_s})) {
        click(u"chooseScreenshotButton"_s);
        QObject &files = scene.object(u"screenshotFileDialog"_s);
        waitFor(u"the file dialog"_s, [&] { return files.property("visible").toBool(); });
        m_pointer.leave();
        take(u"screenshot-file"_s, {.foreign = true});
        close(u"screenshotFileDialog"_s);
    }
    if (wants({u"bug-report-sent"_s})) {
        dialog.setProperty("screenshotFileName", QString());
        // As long as the pictures take, in place of the moment that a user has.
        dialog.setProperty("closeDelay", 600000);
        click(u"bugReportDialog"_s, u"sendButton"_s);
        waitFor(u"the thanks"_s, [this] { return value("bugReportSuccess").toBool(); });
        m_pointer.leave();
        take(u"bug-report-sent"_s);
        dialog.setProperty("closeDelay", 1500);
    }
    close(u"bugReportDialog"_s);
}

void ScreenshotStory::featureRequest()
{
    if (!wants({u"feature-request"_s, u"feature-request-end"_s}))
        return;
    openSettings();
    click(u"settingsPanel"_s, u"featureButton"_s);
    waitClosed(u"settingsPanel"_s);
    waitOpened(u"bugReportDialog"_s);
    takeWhole(u"feature-request"_s, m_studio.scene().item(u"bugReportDialog"_s, u"formView"_s));
    close(u"bugReportDialog"_s);
}

void ScreenshotStory::feedback()
{
    if (!wants({u"feedback"_s, u"feedback-sent"_s, u"feedback-refused"_s}))
        return;
    QObject &dialog = m_studio.scene().object(u"feedbackDialog"_s);
    const int delay = dialog.property("closeDelay").toInt();
    const auto openRated = [&](int stars) {
        openSettings();
        click(u"settingsPanel"_s, u"feedbackButton"_s);
        waitClosed(u"settingsPanel"_s);
        waitOpened(u"feedbackDialog"_s);
        click(u"feedbackDialog"_s, u"star%1"_s.arg(stars));
        waitFor(u"the stars"_s, [&] { return dialog.property("rating").toInt() == stars; });
        m_pointer.leave();
    };
    openRated(4);
    take(u"feedback"_s, {.parts = {u"feedbackDialog"_s}});
    dialog.setProperty("closeDelay", 600000);
    click(u"feedbackDialog"_s, u"sendButton"_s);
    waitFor(u"the thanks"_s, [this] { return value("bugReportSuccess").toBool(); });
    m_pointer.leave();
    take(u"feedback-sent"_s);
    dialog.setProperty("closeDelay", delay);
    close(u"feedbackDialog"_s);
    if (!wants({u"feedback-refused"_s}))
        return;
    // The server takes one a day. The reason stays in the language in which it came.
    openRated(2);
    take(u"feedback-refused"_s, {.before = [&] {
             click(u"feedbackDialog"_s, u"sendButton"_s);
             waitFor(u"the refusal"_s, [this] {
                 return !value("bugReportPending").toBool() &&
                        !value("bugReportError").toString().isEmpty();
             });
             m_pointer.leave();
         }});
    close(u"feedbackDialog"_s);
}
