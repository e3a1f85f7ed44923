// The right-answer chime: how long beep() holds up the screen, and how soon after it the sound
// starts. "Playing" is when the player, on its audio thread, has started its stream; "first sample"
// is when the chime's first loud sample comes back through the audio server's monitor of the output
// (only where such a monitor exists, as with PulseAudio's null or real sinks). Prints 50th and 99th
// percentiles. Without an audio device it measures the bell fallback's return time only.
// Usage: bench_ui_beep [rounds]
#include "chime/ChimePlayer.h"
#include "ui/Look.h"
#include "ui/QtPlatform.h"

#include <QApplication>
#include <QAudioDevice>
#include <QAudioSource>
#include <QElapsedTimer>
#include <QMediaDevices>
#include <QTemporaryDir>
#include <QtEndian>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

void line(const char *what, std::vector<double> v)
{
    if (v.empty()) {
        std::printf("  %-30s not observed\n", what);
        return;
    }
    std::sort(v.begin(), v.end());
    const auto at = [&](double q) { return v[std::size_t(q * double(v.size() - 1))]; };
    std::printf("  %-30s p50 %8.3f ms  p99 %8.3f ms  max %8.3f ms  (%zu)\n", what, at(0.5),
                at(0.99), v.back(), v.size());
}

void runEvents(int ms)
{
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < ms)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
}

// Listens to the output's monitor and notes when a loud sample arrives.
class Monitor
{
public:
    bool open()
    {
        for (const QAudioDevice &d : QMediaDevices::audioInputs())
            if (d.description().contains("Monitor", Qt::CaseInsensitive) ||
                d.id().endsWith(".monitor")) {
                QAudioFormat f;
                f.setSampleRate(48000);
                f.setChannelCount(1);
                f.setSampleFormat(QAudioFormat::Int16);
                source_ = std::make_unique<QAudioSource>(d, f);
                io_ = source_->start();
                return io_ != nullptr;
            }
        return false;
    }
    // Milliseconds from `since` to the first loud sample, or a negative number if none came
    // within `waitMs`.
    double firstLoud(const QElapsedTimer &since, int waitMs)
    {
        while (since.elapsed() < waitMs) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
            const QByteArray data = io_->readAll();
            total += data.size();
            const double arrived = double(since.nsecsElapsed()) / 1e6;
            const int n = int(data.size() / 2);
            for (int i = 0; i < n; ++i)
                if (std::abs(qFromLittleEndian<qint16>(data.constData() + 2 * i)) > 1500)
                    return arrived - double(n - i) / 48.0; // the sample's place in the block
        }
        return -1;
    }
    void drain()
    {
        runEvents(5);
        io_->readAll();
    }

    long long total = 0;

private:
    std::unique_ptr<QAudioSource> source_;
    QIODevice *io_ = nullptr;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    nb::ui::setUpApplication(app);
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 30;

    QTemporaryDir settings;
    nb::ui::QtPlatform platform(settings.filePath("numbrook.conf"));
    platform.setSoundOn(true);
    nb::ui::Sound &sound = platform.sound();
    sound.prepare();
    auto *player = qobject_cast<nb::ui::ChimePlayer *>(sound.player());

    std::vector<double> returns, playing, firstSample;
    if (!player) {
        std::printf("no audio device: beep() rings the bell\n");
        for (int i = 0; i < rounds; ++i) {
            QElapsedTimer t;
            t.start();
            platform.beep();
            returns.push_back(double(t.nsecsElapsed()) / 1e6);
        }
        line("beep() returns after", returns);
        return 0;
    }
    std::printf("audio device: %s\n",
                qPrintable(QMediaDevices::defaultAudioOutput().description()));

    // Noted on the audio thread the moment the stream starts.
    std::atomic<qint64> startedAt{-1};
    QElapsedTimer epoch;
    epoch.start();
    QObject::connect(
        player, &nb::ui::ChimePlayer::started, player, [&] { startedAt = epoch.nsecsElapsed(); },
        Qt::DirectConnection);

    Monitor monitor;
    const bool listening = monitor.open();
    if (!listening)
        std::printf("no output monitor: first sample not observed\n");
    runEvents(300);
    for (int i = 0; i < rounds; ++i) {
        if (listening)
            monitor.drain();
        startedAt = -1;
        QElapsedTimer t;
        t.start();
        const qint64 t0 = epoch.nsecsElapsed();
        platform.beep();
        returns.push_back(double(t.nsecsElapsed()) / 1e6);
        if (listening) {
            const double ms = monitor.firstLoud(t, 1000);
            if (ms >= 0)
                firstSample.push_back(ms);
            if (qEnvironmentVariableIsSet("BEEP_DEBUG"))
                std::printf("round %d: %.3f ms, %lld bytes\n", i, ms, monitor.total);
        }
        runEvents(450); // let the chime finish, as between two answers
        if (startedAt >= 0)
            playing.push_back(double(startedAt - t0) / 1e6);
    }
    std::printf("right-answer chime, %d rounds\n", rounds);
    line("beep() returns after", returns);
    line("playing after", playing);
    line("first sample heard after", firstSample);
    return 0;
}
