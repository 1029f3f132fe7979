#include "camera/ControlThread.h"

#include <QElapsedTimer>
#include <QTest>

#include <condition_variable>
#include <mutex>

using namespace meridax;
using namespace std::chrono_literals;

namespace {

/// A backend whose calls hang until they are let go.
class HangingBackend : public ICameraBackend
{
public:
    ApplyResult applySettings(const CameraSettings &settings, ControlWrites writes,
                              QString *error) override
    {
        hang();
        const std::lock_guard lock(m_mutex);
        m_written << settings.focusValue;
        m_writes = writes;
        *error = QStringLiteral("keine Antwort");
        return {.noAnswer = true};
    }

    bool queryCameraCapabilities(const CameraSettings &, CameraCapabilities *caps,
                                 QString *) override
    {
        hang();
        caps->focus.supported = true;
        return true;
    }

    void letGo()
    {
        const std::lock_guard lock(m_mutex);
        m_free = true;
        m_changed.notify_all();
    }

    bool isCalled() const
    {
        const std::lock_guard lock(m_mutex);
        return m_calls > 0;
    }

    QList<int> written() const
    {
        const std::lock_guard lock(m_mutex);
        return m_written;
    }

    ControlWrites lastWrites() const
    {
        const std::lock_guard lock(m_mutex);
        return m_writes;
    }

private:
    void hang()
    {
        std::unique_lock lock(m_mutex);
        ++m_calls;
        m_changed.wait(lock, [this] { return m_free; });
    }

    mutable std::mutex m_mutex; // guards all
    std::condition_variable m_changed;
    bool m_free = false;
    int m_calls = 0;
    QList<int> m_written;
    ControlWrites m_writes = ControlWrites::Changed;
};

ControlRecord record(int focus, ControlWrites writes = ControlWrites::Changed)
{
    ControlRecord record;
    record.settings.focusValue = focus;
    record.writes = writes;
    return record;
}

} // namespace

class TestControlThread : public QObject
{
    Q_OBJECT

private slots:
    void theLatestRecordWinsAndGoesBeforeAQuestion()
    {
        const auto backend = std::make_shared<HangingBackend>();
        QObject receiver;
        QList<std::uint64_t> answers;
        ControlThread thread(
            backend, &receiver,
            [&](const ControlAnswer &answer) {
                QVERIFY(answer.result.noAnswer);
                QCOMPARE(answer.error, "keine Antwort");
                QCOMPARE(receiver.thread(), QThread::currentThread());
                answers << answer.number;
            },
            [&](const CapabilityAnswer &answer) {
                QVERIFY(answer.any && answer.caps.focus.supported);
                answers << answer.number;
            });
        const auto first = thread.write(record(1));
        QTRY_VERIFY(backend->isCalled());
        const auto question = thread.query({});
        thread.write(record(2, ControlWrites::All));
        thread.write(record(3));
        const auto last = thread.write(record(4));
        backend->letGo();
        QTRY_COMPARE(answers, (QList<std::uint64_t>{first, last, question}));
        QCOMPARE(backend->written(), (QList<int>{1, 4}));
        QVERIFY2(backend->lastWrites() == ControlWrites::All, "taken over from the one replaced");
    }

    void whatWaitsStillGoesOutAtTheEnd()
    {
        const auto backend = std::make_shared<HangingBackend>();
        backend->letGo();
        QObject receiver;
        {
            ControlThread thread(backend, &receiver, [](const ControlAnswer &) {}, {});
            thread.write(record(1));
        }
        QCOMPARE(backend->written(), QList<int>{1});
    }

    void aCallThatHangsIsLeftBehind()
    {
        const auto backend = std::make_shared<HangingBackend>();
        auto receiver = std::make_unique<QObject>();
        QElapsedTimer clock;
        {
            ControlThread thread(backend, receiver.get(),
                                 [](const ControlAnswer &) { qFatal("nobody is there"); }, {});
            thread.write(record(1));
            QTRY_VERIFY(backend->isCalled());
            thread.write(record(2));
            clock.start();
        }
        QVERIFY(clock.elapsed() < 2000);
        QVERIFY(ControlThread::anyLeftBehind());
        receiver.reset();
        backend->letGo();
        QTRY_VERIFY(!ControlThread::anyLeftBehind());
        QCOMPARE(backend->written(), QList<int>{1});
    }
};

QTEST_GUILESS_MAIN(TestControlThread)
#include "tst_controlthread.moc"
