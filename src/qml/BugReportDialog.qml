import QtQuick
import QtQuick.Controls.Material
import QtQuick.Layouts
import Meridax

/// Files a bug report or, with `reportKind` "feature", a feature request. `reportKind` is set before
/// the dialog opens.
SupportDialog {
    id: root

    property string reportKind: "bug"
    /// As the server names it, in every language; empty while none is chosen.
    property string selectedCategory
    property alias screenshotBase64: screenshot.base64
    property alias screenshotMime: screenshot.mime
    property alias screenshotFileName: screenshot.fileName
    property alias includeLogs: logOption.includeLogs
    readonly property int titleMaxLen: 200
    readonly property int descMaxLen: 8000
    readonly property int descMinLen: 50

    readonly property bool _feature: reportKind === "feature"
    // The crash stands first: its reports come before all others, and many take the top entry.
    readonly property list<string> _categories: _feature
        ? ["Hardware", "Workflow", "GUI", "Other"]
        : ["Crash", "Installation", "Hardware", "Workflow", "GUI", "Other"]
    readonly property var _categoryLabels: ({
        "Crash": qsTr("Crash"),
        "Installation": qsTr("Installation"),
        "Hardware": qsTr("Hardware"),
        "Workflow": qsTr("Workflow"),
        "GUI": qsTr("GUI"),
        "Other": qsTr("Other")
    })
    readonly property int _trimmedLength: description.text.trim().length
    readonly property bool _descriptionTooShort: _trimmedLength < descMinLen

    /// Fills the open form with the report of the last crash, if there is one.
    function prefillFromCrash() {
        if (!ViewModel.hasUnsentCrash)
            return;
        titleField.text = ViewModel.crashReportTitle();
        description.text = "=== Crash-Report ===\n" + ViewModel.lastCrashReport;
        selectedCategory = "Crash";
    }

    function _send() {
        const title = titleField.text.trim();
        if (_feature)
            ViewModel.submitFeatureRequest(title, description.text, screenshotBase64,
                                           screenshotMime, selectedCategory);
        else
            ViewModel.submitBugReportWithLogs(title, description.text, screenshotBase64,
                                              screenshotMime, includeLogs, selectedCategory);
    }

    width: 560
    title: _feature ? qsTr("Feature vorschlagen") : qsTr("Bug melden")
    subtitle: _feature ? qsTr("Welche Funktion wünschst du dir? Erzähl uns von deiner Idee.")
                       : qsTr("Vielen Dank fürs Helfen! Der Report geht direkt an den Support.")
    accent: _feature ? "#757575" : "#E53935"
    successText: _feature ? qsTr("Vielen Dank! Dein Feature-Vorschlag wurde erfasst.")
                          : qsTr("Vielen Dank! Der Bug-Report wurde erfasst.")
    closeDelay: 1500
    complete: titleField.text.trim() !== "" && titleField.length <= titleMaxLen
              && !_descriptionTooShort && description.length <= descMaxLen
              && selectedCategory !== ""

    touched: titleField.length > 0 || description.length > 0 || screenshotBase64 !== ""

    onReportKindChanged: selectedCategory = ""
    onAboutToShow: {
        titleField.clear();
        description.text = "";
        screenshot.clear();
        selectedCategory = "";
        titleField.forceActiveFocus();
    }
    onClosed: {
        reportKind = "bug";
        selectedCategory = "";
    }
    onSubmitted: _send()

    NoticeBox {
        text: qsTr("Bitte keine sensiblen Daten (Passwörter, persönliche Adressen) in der Beschreibung. Der Report wird vom Support gelesen + ggf. lange aufbewahrt.")
    }

    ColumnLayout {
        spacing: 4
        Layout.fillWidth: true

        CountedLabel {
            objectName: "titleCaption"
            text: qsTr("Titel *")
            counter: "%1 / %2".arg(titleField.length).arg(root.titleMaxLen)
            alert: titleField.length > root.titleMaxLen
        }

        HintTextField {
            id: titleField

            objectName: "titleField"
            hint: root._feature ? qsTr("Kurz: was soll Meridax können?")
                                : qsTr("Kurz: was ist passiert?")
            maximumLength: root.titleMaxLen
            enabled: root.editable
            Accessible.name: qsTr("Titel *")
            Layout.fillWidth: true
        }
    }

    ColumnLayout {
        spacing: 4
        Layout.fillWidth: true

        Label {
            id: categoryCaption

            text: qsTr("Kategorie *")
            font.pixelSize: 12
            color: Theme.text
        }

        SelectionComboBox {
            objectName: "categoryBox"
            model: root._categories.map(category => root._categoryLabels[category])
            selectedIndex: root._categories.indexOf(root.selectedCategory)
            displayText: currentIndex < 0 ? qsTr("(bitte wählen)") : currentText
            enabled: root.editable
            implicitHeight: 36
            name: categoryCaption.text
            Layout.fillWidth: true
            onActivated: index => root.selectedCategory = root._categories[index]
        }
    }

    ColumnLayout {
        spacing: 4
        Layout.fillWidth: true

        CountedLabel {
            objectName: "descriptionCaption"
            text: qsTr("Beschreibung") + " *"
            counter: root._descriptionTooShort
                     ? qsTr("min. %1 Zeichen (noch %2)").arg(root.descMinLen)
                                                        .arg(root.descMinLen - root._trimmedLength)
                     : "%1 / %2".arg(description.length).arg(root.descMaxLen)
            alert: root._descriptionTooShort || description.length > root.descMaxLen
        }

        HintTextArea {
            id: description

            objectName: "descriptionArea"
            name: qsTr("Beschreibung")
            hint: root._feature
                  ? qsTr("Was würdest du gerne tun? Wie würde es deinem Workflow helfen?")
                  : qsTr("Reproschritte, erwartetes vs. tatsächliches Verhalten …")
            enabled: root.editable
            Layout.fillWidth: true
            Layout.preferredHeight: 140
        }
    }

    ScreenshotPicker {
        id: screenshot

        objectName: "screenshotPicker"
        enabled: root.editable
    }

    LogOption {
        id: logOption

        objectName: "logOption"
        visible: !root._feature
        enabled: root.editable
    }
}
