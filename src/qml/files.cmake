# The QML files of the module Meridax, relative to the root of the repository.

# The types that the module offers, in the order of its qmldir.
set(meridax_qml_public
    src/qml/Theme.qml
    src/qml/Main.qml
    src/qml/LeftSettingsPanel.qml
    src/qml/CameraSettingsPane.qml
    src/qml/ResidualPlot.qml
    src/qml/CollapsibleSection.qml
    src/qml/CalibrationPane.qml
    src/qml/SectionLabel.qml
    src/qml/SettingsSlider.qml
    src/qml/SettingsSpinBox.qml
    src/qml/SettingsComboBox.qml
    src/qml/InfoTooltip.qml
)

# Parts of the types above. They have no entry in the module's qmldir and are found through the
# import of their own folder.
set(meridax_qml_internal
    src/qml/BarSeparator.qml
    src/qml/BlobParameters.qml
    src/qml/CalibrationHint.qml
    src/qml/CenterCanvas.qml
    src/qml/CenterDiagram.qml
    src/qml/CenterDialog.qml
    src/qml/CenterFigures.qml
    src/qml/CompactSpinBox.qml
    src/qml/CountRow.qml
    src/qml/FewPositionsWarning.qml
    src/qml/FigureCaption.qml
    src/qml/FigureValue.qml
    src/qml/FilledButton.qml
    src/qml/FilterSwitch.qml
    src/qml/FitTable.qml
    src/qml/FocusFrame.qml
    src/qml/GuideSector.qml
    src/qml/HelpTip.qml
    src/qml/InputShield.qml
    src/qml/LegendEntry.qml
    src/qml/LiveView.qml
    src/qml/MeasureButton.qml
    src/qml/MeasurementRow.qml
    src/qml/MeasurementTable.qml
    src/qml/ModalDim.qml
    src/qml/OverlayCanvas.qml
    src/qml/PanelFlickable.qml
    src/qml/PanelHandle.qml
    src/qml/QualityStrip.qml
    src/qml/RoundnessCanvas.qml
    src/qml/RoundnessDiagram.qml
    src/qml/ScaleButton.qml
    src/qml/SectionChevron.qml
    src/qml/SelectionComboBox.qml
    src/qml/SliderValueDisplay.qml
    src/qml/SliderValueEditor.qml
    src/qml/StatusBar.qml
    src/qml/StepButton.qml
    src/qml/TopBar.qml
    src/qml/ValuePill.qml
    src/qml/Watermark.qml
    src/qml/WindowBackground.qml
    src/qml/ZoomControl.qml
    src/qml/ZoomStepButton.qml
    src/qml/overlayGeometry.mjs
    src/qml/plotGeometry.mjs
)
