pragma ComponentBehavior: Bound

import QtQuick
import Meridax

/// The choice of the language. It follows the settings; a code that is not in the list leaves it as
/// it is.
SettingsComboBox {
    id: root

    readonly property list<string> codes: ["de", "en", "fr", "es", "it"]

    function _follow() {
        const index = codes.indexOf(ViewModel.language);
        if (index >= 0 && index !== currentIndex)
            currentIndex = index;
    }

    // Each in its own language, in every language.
    model: ["Deutsch", "English", "Français", "Español", "Italiano"]
    onActivated: index => ViewModel.language = codes[index]
    Component.onCompleted: _follow()

    Connections {
        target: ViewModel

        function onAppSettingsChanged() {
            root._follow();
        }
    }
}
