import Meridax

/// The terms of use or the privacy statement, as they lie in the view model; opening it asks no
/// server. `kind` is set before the dialog opens.
ReadingDialog {
    id: root

    /// "eula" or "privacy".
    property string kind: "eula"
    readonly property bool _privacy: kind === "privacy"
    readonly property string _name: _privacy ? qsTr("Datenschutzerklärung")
                                             : qsTr("Nutzungsbedingungen")
    readonly property string _version: _privacy ? ViewModel.privacyVersion : ViewModel.eulaVersion

    title: _version !== "" ? qsTr("%1 (v%2)").arg(_name).arg(_version) : _name
    accent: "#4A9ECA"
    text: _privacy ? ViewModel.privacyMarkdown : ViewModel.eulaMarkdown
    fallback: qsTr("Dieser Rechtstext liegt noch nicht lokal vor. Bitte verbinde dich einmal mit dem Internet und starte Meridax neu, damit er vom Server geladen werden kann.")
}
