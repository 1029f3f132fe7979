import QtQuick
import QtQuick.Controls.Material

/// What the user has to do before the next position can be measured.
LiveLabel {
    id: root

    required property int blobCount
    required property bool blobInSector

    text: {
        if (blobCount === 1)
            return blobInSector ? qsTr("✓ Blob im Sektor – bereit zum Messen")
                                : qsTr("⟳ Kamera auf Sektor drehen");
        return blobCount === 0 ? qsTr("⚠ Kein Blob sichtbar")
                               : qsTr("%1 Blobs – bitte einen wählen").arg(blobCount);
    }
    color: blobCount === 1 && blobInSector ? Material.accentColor : "#F57F17"
    font.pixelSize: 13
    wrapMode: Text.WordWrap
}
