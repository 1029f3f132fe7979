// Focus presets: the list, the active one, and whether the settings still agree with it.

#include "viewmodel/CameraViewModel.h"

#include <QDebug>

namespace meridax {

namespace {

void logPreset(const char *text, const FocusPreset &preset)
{
    qInfo().noquote() << text << preset.name << "focus=" << preset.focusValue
                      << "markers=" << preset.hasMarkers;
}

} // namespace

QVariantList CameraViewModel::focusPresets() const
{
    QVariantList presets;
    for (const FocusPreset &preset : m_focusPresets) {
        presets.append(QVariantMap{{QStringLiteral("name"), preset.name},
                                   {QStringLiteral("focusValue"), preset.focusValue},
                                   {QStringLiteral("hasMarkers"), preset.hasMarkers}});
    }
    return presets;
}

void CameraViewModel::addFocusPreset(const QString &name)
{
    QString shownName = name.trimmed();
    if (shownName.isEmpty())
        shownName = tr("Preset %1").arg(m_focusPresets.size() + 1);
    m_focusPresets.append(
        captureFocusPreset(shownName, m_settings.camera, m_settings.focusPresetIncludeMarkers));
    m_activeFocusPresetIndex = int(m_focusPresets.size()) - 1;
    m_activeFocusPresetDirty = false;
    logPreset("[FocusPreset] Angelegt:", m_focusPresets.constLast());
    emit focusPresetsChanged();
    emit focusPresetActiveChanged();
}

void CameraViewModel::applyFocusPreset(int index)
{
    if (!hasFocusPreset(index))
        return;
    const FocusPreset preset = m_focusPresets.at(index);
    meridax::applyFocusPreset(preset, m_settings.camera);
    // Before the signals, which have the settings compared with the active preset.
    m_activeFocusPresetIndex = index;
    m_activeFocusPresetDirty = false;
    m_controller.updateSettings(m_settings);
    emit cameraSettingsChanged();
    emit overlaySettingsChanged();
    m_saveTimer.start();
    emit focusPresetActiveChanged();
    logPreset("[FocusPreset] Angefahren:", preset);
}

void CameraViewModel::updateFocusPreset(int index)
{
    if (!hasFocusPreset(index))
        return;
    FocusPreset &preset = m_focusPresets[index];
    preset =
        captureFocusPreset(preset.name, m_settings.camera, m_settings.focusPresetIncludeMarkers);
    m_activeFocusPresetIndex = index;
    m_activeFocusPresetDirty = false;
    qInfo().noquote() << "[FocusPreset] Aktualisiert:" << preset.name;
    emit focusPresetsChanged();
    emit focusPresetActiveChanged();
}

void CameraViewModel::renameFocusPreset(int index, const QString &newName)
{
    if (!hasFocusPreset(index))
        return;
    const QString name = newName.trimmed();
    if (name.isEmpty() || name == m_focusPresets.at(index).name)
        return;
    m_focusPresets[index].name = name;
    emit focusPresetsChanged();
}

void CameraViewModel::removeFocusPreset(int index)
{
    if (!hasFocusPreset(index))
        return;
    qInfo().noquote() << "[FocusPreset] Gelöscht:" << m_focusPresets.at(index).name;
    m_focusPresets.removeAt(index);
    if (m_activeFocusPresetIndex == index) {
        m_activeFocusPresetIndex = -1;
        m_activeFocusPresetDirty = false;
    } else if (m_activeFocusPresetIndex > index) {
        --m_activeFocusPresetIndex;
    }
    emit focusPresetsChanged();
    emit focusPresetActiveChanged();
}

void CameraViewModel::clearFocusPresets()
{
    if (m_focusPresets.isEmpty())
        return;
    m_focusPresets.clear();
    m_activeFocusPresetIndex = -1;
    m_activeFocusPresetDirty = false;
    emit focusPresetsChanged();
    emit focusPresetActiveChanged();
}

bool CameraViewModel::hasFocusPreset(int index) const
{
    return index >= 0 && index < m_focusPresets.size();
}

void CameraViewModel::connectFocusPresets()
{
    connect(this, &CameraViewModel::overlaySettingsChanged, this,
            &CameraViewModel::compareWithFocusPreset);
    connect(this, &CameraViewModel::cameraSettingsChanged, this,
            &CameraViewModel::compareWithFocusPreset);
}

void CameraViewModel::compareWithFocusPreset()
{
    const bool dirty =
        hasFocusPreset(m_activeFocusPresetIndex) &&
        !matchesFocusPreset(m_focusPresets.at(m_activeFocusPresetIndex), m_settings.camera);
    if (dirty == m_activeFocusPresetDirty)
        return;
    m_activeFocusPresetDirty = dirty;
    emit focusPresetActiveChanged();
}

} // namespace meridax
