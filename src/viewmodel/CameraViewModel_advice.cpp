// Why the mark is not found, and the values that find it.

#include "viewmodel/BlobAdviceMap.h"
#include "viewmodel/CameraViewModel.h"

#include <utility>

namespace meridax {

void CameraViewModel::connectBlobAdvice()
{
    connect(&m_controller, &CameraController::blobAdviceChanged, this,
            [this](const BlobAdvice &advice) {
                if (m_calibrationActive)
                    storeBlobAdvice(blobAdviceMap(advice, m_settings.blob), advice.proposal);
            });
    // Whatever changes the values by itself makes them the user's own.
    connect(this, &CameraViewModel::blobSettingsChanged, this, [this] {
        m_blobProposal.reset();
        if (m_blobBeforeAdvice.has_value()) {
            m_blobBeforeAdvice.reset();
            emit blobAdviceChanged();
        }
    });
}

void CameraViewModel::storeBlobAdvice(const QVariantMap &advice,
                                      const std::optional<BlobSettings> &proposal)
{
    m_blobProposal = proposal;
    if (advice == m_blobAdvice)
        return;
    m_blobAdvice = advice;
    emit blobAdviceChanged();
}

void CameraViewModel::applyBlobAdvice()
{
    if (!m_blobProposal)
        return;
    const BlobSettings before = m_settings.blob;
    setBlobSettings(BlobSettings(*m_blobProposal));
    m_blobBeforeAdvice = before;
    m_blobAdvice.clear(); // it was about the values of before
    emit blobAdviceChanged();
}

void CameraViewModel::undoBlobAdvice()
{
    if (const auto before = std::exchange(m_blobBeforeAdvice, std::nullopt)) {
        setBlobSettings(*before);
        emit blobAdviceChanged();
    }
}

/// Only what differs, so that a slider that does not move is not touched.
void CameraViewModel::setBlobSettings(const BlobSettings &settings)
{
    const auto change = [this](const auto &present, const auto &wanted, auto setter) {
        if (present != wanted)
            (this->*setter)(wanted);
    };
    const BlobSettings &now = m_settings.blob;
    change(now.minThreshold, settings.minThreshold, &CameraViewModel::setBlobMinThreshold);
    change(now.maxThreshold, settings.maxThreshold, &CameraViewModel::setBlobMaxThreshold);
    change(now.filterByArea, settings.filterByArea, &CameraViewModel::setBlobFilterArea);
    change(now.minArea, settings.minArea, &CameraViewModel::setBlobMinArea);
    change(now.maxArea, settings.maxArea, &CameraViewModel::setBlobMaxArea);
    change(now.filterByCircularity, settings.filterByCircularity,
           &CameraViewModel::setBlobFilterCircularity);
    change(now.minCircularity, settings.minCircularity, &CameraViewModel::setBlobMinCircularity);
    change(now.filterByInertia, settings.filterByInertia, &CameraViewModel::setBlobFilterInertia);
    change(now.minInertiaRatio, settings.minInertiaRatio, &CameraViewModel::setBlobMinInertiaRatio);
}

} // namespace meridax
