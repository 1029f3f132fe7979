#include "ContrastTable.h"

#include "Wcag.h"

#include <QVariant>

#include <algorithm>
#include <vector>

namespace {

enum class Origin { Given, Own };
constexpr auto given = Origin::Given;
constexpr auto own = Origin::Own;

constexpr double text = 4.5;    ///< WCAG AA, 1.4.3
constexpr double large = 3.0;   ///< the same, from 24 px or 18.7 px bold
constexpr double graphic = 3.0; ///< WCAG AA, 1.4.11

/// One use of a colour. A colour is a property of the theme or "#rrggbb", with "/0.5" behind it
/// for its opacity; "a|b" is a in the dark theme and b in the light one. A ground is made of layers
/// from the bottom up, divided by blanks; "picture" is the live picture, which may be of any
/// brightness.
struct Use
{
    const char *where;
    const char *colour;
    const char *ground;
    double needed = text;
    Origin origin = given;
    const char *remark = "";
};

const Use uses[] = {
    {"Top bar: names, state of the camera", "text", "topBarBg"},
    {"Top bar and status bar: the rest", "textMuted", "topBarBg"},
    {"Top bar: “Kalibriert”", "#4CAF50", "topBarBg"},
    {"Top bar: one blob", "#FFFFFF", "#388E3C"},
    {"Top bar: no or several blobs", "#FFFFFF", "#B71C1C"},
    {"“Start”", "#000000", "#4CAF50", text, own},
    {"“Stop”, “Abbrechen”", "#000000", "#F44336", text, own},
    {"Banner: version", "text", "topBarBg #4A9ECA/0.12"},
    {"Banner: notes", "textMuted", "topBarBg #4A9ECA/0.12"},
    {"Banner: link", "#4A9ECA", "topBarBg #4A9ECA/0.12"},
    {"Banner of a beta: link", "#FFA726", "topBarBg #FFA726/0.12"},
    {"Banner: “Herunterladen”", "#FFFFFF", "#4A9ECA"},
    {"Banner of a beta: “Herunterladen”, tag “BETA”", "#FFFFFF", "#FFA726"},

    {"Panels: headings, tabs, hint when ready", "#4A9ECA", "picture panelBg"},
    {"Panels: names of sliders", "sliderLabel", "picture panelBg"},
    {"Panels: values of sliders", "sliderValue", "picture panelBg"},
    {"Panels: names of rows", "rowLabel", "picture panelBg"},
    {"Panels: names of choices and switches", "rowLabelEnabled", "picture panelBg"},
    {"Panels: “Position 1 von 8”", "textTableHeader", "picture panelBg"},
    {"Panels: hint", "#F57F17", "picture panelBg"},
    {"Panels: handle", "handleText", "picture handleBg"},
    {"Panels: “AUTO”, “AF”", "#FFFFFF", "#4CAF50"},
    {"Panels: number while it is typed", "#FFFFFF|#000000", "picture panelBg #000000/0.45", text,
     own},
    {"Panels: note under that number", "#000000", "#F57F17", text, own},
    {"“Kalibrierung starten”", "#000000", "#4CAF50", text, own},
    {"“Position messen”", "#FFFFFF", "#4CAF50"},
    {"“Position messen”, not possible", "#FFFFFF", "#2E3A2E"},
    {"“Messe… 2 / 4”, still to come", "#FFFFFF", "#1B5E20"},
    {"“Messe… 2 / 4”, done", "#FFFFFF", "#81C784"},

    {"Tables: figures, “Messgüte”", "text", "tableBg"},
    {"Tables: captions, assessment, legends", "textMuted", "tableBg"},
    {"Tables: head", "textTableHeader", "tableBg"},
    {"Tables: coordinates", "#4A9ECA", "tableBg"},
    {"Tables: excellent", "#4CAF50", "tableBg"},
    {"Tables: good", "#8BC34A", "tableBg"},
    {"Tables: fair", "#F57F17", "tableBg"},
    {"Tables: poor", "#E53935", "tableBg"},
    {"Diagrams: numbers of the scale", "#9aa7b4", "tableBg"},
    {"Diagrams: ideal circle", "#43A047", "tableBg", graphic},
    {"Diagrams: rings and axes", "#9aa7b4", "tableBg", graphic},
    {"Diagrams: measured points", "#4A9ECA", "tableBg", graphic},
    {"Diagrams: measured centre", "#E91E63", "tableBg", graphic},
    {"Diagrams: centre of the sensor", "#5f6b76", "tableBg", graphic},

    {"Settings and dialogs: text", "text", "settingsPanelBg"},
    {"Settings and dialogs: explanations", "textMuted", "settingsPanelBg"},
    {"Settings and dialogs: headings", "#4A9ECA", "settingsPanelBg"},
    {"Settings: stored centre", "textTableHeader", "settingsPanelBg"},
    {"Dialogs: blue title", "#4A9ECA", "settingsHeaderBg"},
    {"Dialogs: red title", "#E53935", "settingsHeaderBg"},
    {"Dialogs: grey title", "#757575", "settingsHeaderBg"},
    {"Dialogs: green title", "#43A047", "settingsHeaderBg"},
    {"Dialogs: orange title", "#FFA726", "settingsHeaderBg"},
    {"Dialogs: subtitle", "textMuted", "settingsHeaderBg"},
    {"Dialogs: note", "text", "settingsPanelBg #FFA726/0.1"},
    {"Dialogs: success, file name", "textGood", "settingsPanelBg", text, own},
    {"Dialogs: error, counter", "#F44336", "settingsPanelBg"},
    {"Verdict: excellent", "#4CAF50", "settingsPanelBg"},
    {"Verdict: good", "#8BC34A", "settingsPanelBg"},
    {"Verdict: fair", "#F57F17", "settingsPanelBg"},
    {"Verdict: poor", "#E53935", "settingsPanelBg"},
    {"“Bug”", "#FFFFFF", "#E53935"},
    {"“Feature”", "#FFFFFF", "#757575"},
    {"“Feedback”", "#FFFFFF", "#43A047"},
    {"“Senden” of a bug", "#000000", "#E53935", text, own},
    {"“Senden” of a feature", "#FFFFFF", "#757575", text, own},
    {"“Senden” of feedback", "#000000", "#43A047", text, own},
    {"“Senden” of a crash", "#000000", "#FFA726", text, own},
    {"“Profil speichern”, “Schließen”, “Herunterladen”", "#000000", "#4A9ECA", text, own},
    {"Crash: title", "#FFA726", "#3a2410"},
    {"Crash: subtitle", "#cca588", "#3a2410"},
    {"Crash: badge", "#3a2410", "#FFA726", large, own},

    {"Picture: failed screenshot", "#FFFFFF", "#E53935"},
    {"Picture: message of the focus", "#FFD9A0", "picture #000000/0.82"},
    {"Picture: name that is typed", "#FFFFFF", "picture #000000/0.7"},
    {"Picture: hint in its field", "#C8C8C8", "picture #000000/0.7", text, own},
    {"Picture: zoom", "#FFFFFF", "picture #000000/0.28", text, given, "outlined in black"},
    {"Picture: names of presets, “Fokussiere…”", "#FFFFFF", "picture", text, given,
     "outlined in black"},
    {"Picture: focus value", "#B0B0B0", "picture", text, given, "outlined in black"},

    {"Focus frame: top bar", "focusFrame", "topBarBg", graphic, own},
    {"Focus frame: panels", "focusFrame", "picture panelBg", graphic, own},
    {"Focus frame: settings and dialogs", "focusFrame", "settingsPanelBg", graphic, own},
};

QColor colourOf(const QString &name, const QObject &theme)
{
    const QStringList byTheme = name.split(u'|');
    const QString here = theme.property("dark").toBool() ? byTheme.first() : byTheme.last();
    const QString base = here.section(u'/', 0, 0);
    QColor colour =
        base.startsWith(u'#') ? QColor(base) : theme.property(base.toLatin1()).value<QColor>();
    if (here.contains(u'/'))
        colour.setAlphaF(here.section(u'/', 1).toFloat());
    return colour;
}

/// The lowest contrast that any picture leaves.
double lowestRatio(const Use &use, const QObject &theme)
{
    double lowest = 21.0;
    // Between black and white a ground of the text's own brightness may come up.
    constexpr int steps = 255;
    for (int i = 0; i <= steps; ++i) {
        QColor ground = QColor::fromRgb(i, i, i);
        bool anyPicture = false;
        for (const QString &layer : QString::fromUtf8(use.ground).split(u' ')) {
            if (layer == QLatin1StringView("picture"))
                anyPicture = true;
            else
                ground = laidOver(colourOf(layer, theme), ground);
        }
        const QColor colour = laidOver(colourOf(QString::fromUtf8(use.colour), theme), ground);
        lowest = std::min(lowest, contrastRatio(colour, ground));
        if (!anyPicture)
            break;
    }
    return lowest;
}

QString cell(double ratio, double needed)
{
    // Cut off and not rounded, so that no figure promises more than there is.
    const QString number = QString::number(std::floor(ratio * 10.0) / 10.0, 'f', 1);
    return ratio < needed ? QStringLiteral("**%1**").arg(number) : number;
}

QString shown(const char *colours)
{
    return QString::fromUtf8(colours)
        .replace(u'|', QStringLiteral(" or "))
        .replace(u' ', QStringLiteral(" + "))
        .replace(QStringLiteral(" + or + "), QStringLiteral(" or "));
}

const char *const introduction =
    R"(# Contrast of texts and marks

Made by `./dev contrast`; a test compares this page with the colours of the program.

Contrast after WCAG 2.2, in the dark and the light theme; AA asks for 4.5 to 1 for text and 3 to 1 for
large text and for marks. A ground that lets the picture through is counted over the picture that
leaves the least. What is too low stands in bold: these colours are given by the design of the
program, which uses them as signals, and nothing is told by them alone. All colours outside the
design reach AA. Texts of controls that are disabled are left out, as in WCAG.

| where | colour | on | dark | light | AA | remark |
|---|---|---|---|---|---|---|
)";

} // namespace

ContrastTable contrastTable(QObject &theme)
{
    ContrastTable table{QString::fromUtf8(introduction), {}};
    for (const Use &use : uses) {
        theme.setProperty("dark", true);
        const double dark = lowestRatio(use, theme);
        theme.setProperty("dark", false);
        const double light = lowestRatio(use, theme);
        const bool low = std::min(dark, light) < use.needed;
        if (low && use.origin == own)
            table.faults << QString::fromUtf8(use.where);
        const QString remark = low && *use.remark == '\0' ? QStringLiteral("given colour")
                                                          : QString::fromUtf8(use.remark);
        table.page += QStringLiteral("| %1 | %2 | %3 | %4 | %5 | %6 | %7 |\n")
                          .arg(QString::fromUtf8(use.where), shown(use.colour), shown(use.ground),
                               cell(dark, use.needed), cell(light, use.needed),
                               QString::number(use.needed, 'f', 1), remark);
    }
    return table;
}
