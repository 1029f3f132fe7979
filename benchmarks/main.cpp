#include "BenchFrames.h"
#include "RatioReport.h"
#include "camera/CameraController.h"
#include "camera/FrameImage.h"
#include "measurement/CandidateSearch.h"

#include <QGuiApplication>

#include <opencv2/imgproc.hpp>

#include <chrono>
#include <cstring>
#include <semaphore>
#include <vector>

using namespace meridax;
using Clock = std::chrono::steady_clock;

namespace {

QSize sizeOf(const benchmark::State &state)
{
    const int rows = static_cast<int>(state.range(0));
    return rows == 480 ? QSize(640, 480) : rows == 1080 ? QSize(1920, 1080) : QSize(3264, 2448);
}

double seconds(Clock::time_point from, Clock::time_point to)
{
    return std::chrono::duration<double>(to - from).count();
}

/// The real controller, from the moment a frame lies in its slot to the moment it is published.
/// Without a camera it takes the frames that are handed in.
class Pipeline
{
public:
    explicit Pipeline(const AppSettings &settings)
    {
        controller.updateSettings(settings);
        controller.startCamera();
        QObject::connect(
            &controller, &CameraController::frameReady, &controller,
            [this](const QImage &) {
                m_published = Clock::now();
                m_done.release();
            },
            Qt::DirectConnection);
    }

    struct Times
    {
        double handOver; ///< s the caller was held
        double path;     ///< s on the processing thread
    };

    Times run(const QVideoFrame &frame)
    {
        Clock::time_point before;
        Clock::time_point accepted;
        // The pipeline frees itself a moment after it has published and drops what comes earlier
        // at once: offer the frame until it is taken. A caller that was put to sleep in a dropped
        // offer takes it for accepted, hence the end to the waiting.
        do {
            do {
                before = Clock::now();
                controller.onVideoFrame(frame);
                accepted = Clock::now();
            } while (accepted - before < std::chrono::microseconds(2));
        } while (!m_done.try_acquire_for(std::chrono::seconds(2)));
        std::this_thread::sleep_for(std::chrono::microseconds(200));
        return {seconds(before, accepted), seconds(accepted, m_published)};
    }

    CameraController controller;

private:
    std::binary_semaphore m_done{0};
    Clock::time_point m_published;
};

void copyOfTheFrame(benchmark::State &state)
{
    const QImage source = benchFrame(sizeOf(state));
    QImage target = source.copy();
    for (auto _ : state) {
        std::memcpy(target.bits(), source.constBits(), static_cast<size_t>(source.sizeInBytes()));
        benchmark::ClobberMemory();
    }
}

void bareCalls(benchmark::State &state)
{
    const QImage source = benchFrame(sizeOf(state));
    cv::Mat bgr;
    cv::cvtColor(wrapRgbImage(source), bgr, cv::COLOR_RGB2BGR);
    const cv::Ptr<cv::SimpleBlobDetector> detector = createBlobDetector(BlobSettings());
    cv::Mat grey;
    cv::Mat scaled;
    for (auto _ : state) {
        cv::cvtColor(bgr, grey, cv::COLOR_BGR2GRAY);
        benchmark::DoNotOptimize(detectBlobs(*detector, grey, scaled));
    }
}

/// One search for candidates, which is made at most at every third frame.
void candidateSearch(benchmark::State &state)
{
    const QImage source = benchFrame(sizeOf(state));
    cv::Mat grey;
    cv::cvtColor(wrapRgbImage(source), grey, cv::COLOR_RGB2GRAY);
    cv::Mat scaled;
    const cv::Mat image = detectionImage(grey, scaled);
    const double scale = 1.0 * grey.cols / image.cols;
    BlobSettings settings;
    settings.minArea = 40'000; // the mark is smaller
    CandidateSearch search;
    for (auto _ : state)
        search.search(image, scale, settings, 0);
}

void livePath(benchmark::State &state, const CameraSettings &camera)
{
    AppSettings settings;
    settings.camera = camera;
    Pipeline pipeline(settings);
    const QVideoFrame frame(benchFrame(sizeOf(state)));
    for (auto _ : state)
        state.SetIterationTime(pipeline.run(frame).path);
}

void calibrationPath(benchmark::State &state)
{
    Pipeline pipeline{AppSettings()};
    pipeline.controller.startCalibration(8);
    const QVideoFrame frame(benchFrame(sizeOf(state)));
    for (auto _ : state)
        state.SetIterationTime(pipeline.run(frame).path);
}

void guiThreadHeld(benchmark::State &state)
{
    Pipeline pipeline{AppSettings()};
    for (auto _ : state) {
        // A frame keeps its decoded image, so each pass needs a new one.
        state.PauseTiming();
        const QVideoFrame frame = benchJpegFrame(sizeOf(state));
        state.ResumeTiming();
        state.SetIterationTime(pipeline.run(frame).handOver);
    }
}

void registerAll()
{
    CameraSettings set;
    set.brightness = 10;
    set.contrast = 60;
    set.saturation = 70;
    const auto add = [](const char *name, auto function, auto... arguments) {
        benchmark::RegisterBenchmark(name, function, arguments...)
            ->Arg(480)
            ->Arg(1080)
            ->Arg(2448)
            ->Unit(benchmark::kMillisecond)
            ->Repetitions(9)
            ->ReportAggregatesOnly();
    };
    const auto addManual = [](const char *name, auto function, auto... arguments) {
        benchmark::RegisterBenchmark(name, function, arguments...)
            ->Arg(480)
            ->Arg(1080)
            ->Arg(2448)
            ->Unit(benchmark::kMillisecond)
            ->UseManualTime()
            ->Iterations(15)
            ->Repetitions(9)
            ->ReportAggregatesOnly();
    };
    add("memcpy", copyOfTheFrame);
    add("bare calls", bareCalls);
    add("candidate search", candidateSearch);
    addManual("live, neutral", livePath, CameraSettings());
    addManual("live, adjusted", livePath, set);
    addManual("calibration", calibrationPath);
    addManual("GUI thread, MJPEG", guiThreadHeld);
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    registerAll();
    // Interleaved, so that whatever else the machine does meets all paths alike.
    char interleaved[] = "--benchmark_enable_random_interleaving=true";
    std::vector<char *> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, interleaved);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    RatioReport report;
    benchmark::RunSpecifiedBenchmarks(&report);
}
