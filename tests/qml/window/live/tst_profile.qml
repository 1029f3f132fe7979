import QtQuick
import QtTest
import Meridax

// The camera profile in the settings panel, with a camera attached.
TestCase {
    id: testCase

    name: "CameraProfile"
    when: windowShown

    property var window: null

    Component {
        id: mainComponent

        Main {}
    }

    function test_profile() {
        failOnWarning(/.?/);
        ViewModel.saveWindowGeometry(0, 0, 1200, 800, false);
        window = createTemporaryObject(mainComponent, testCase);
        tryCompare(window, "active", true);
        mouseClick(findChild(window, "settingsButton"));
        const panel = findChild(window, "settingsPanel");
        tryCompare(panel, "opened", true);
        const part = name => findChild(panel.contentItem, name);

        ViewModel.clearCameraProfile();
        compare(part("profileCameraLabel").text, ViewModel.selectedCameraName);
        compare(part("saveProfileButton").text, "Profil speichern");
        verify(!part("clearProfileButton").visible && !part("profileCenterLabel").visible);

        mouseClick(part("profileRestoreOnConnect"));
        verify(ViewModel.profileRestoreOnConnect && part("profileCenterLabel").visible);
        compare(ViewModel.profileCenterX, ViewModel.centerX, "what is set now is stored");

        ViewModel.centerX = 320.456;
        ViewModel.centerY = 0;
        mouseClick(part("saveProfileButton"));
        compare(part("profileCenterLabel").text, "noch nicht gespeichert");
        compare(part("profileCenterLabel").color, Theme.textDisabled);
        ViewModel.centerY = 240;
        compare(part("saveProfileButton").text, "Profil aktualisieren");
        mouseClick(part("saveProfileButton"));
        compare(part("profileCenterLabel").text, "320.46 / 240.00");
        compare(part("profileCenterLabel").color, Theme.text);

        mouseClick(part("clearProfileButton"));
        verify(!ViewModel.profileExists && !part("profileRestoreOnConnect").checked);
    }
}
