#include "chime/ChimePlayer.h"

#include <QAudioSink>
#include <QBuffer>
#include <QFile>
#include <QMediaDevices>
#include <QtEndian>

namespace nb::ui {

namespace {

// The program's own sounds are 16-bit PCM WAV files with a plain 44-byte header.
bool readWav(const QString &path, QAudioFormat &format, QByteArray &samples)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = f.readAll();
    if (bytes.size() <= 44 || !bytes.startsWith("RIFF") || bytes.mid(36, 4) != "data")
        return false;
    const char *h = bytes.constData();
    if (qFromLittleEndian<quint16>(h + 20) != 1 || qFromLittleEndian<quint16>(h + 34) != 16)
        return false;
    format.setChannelCount(qFromLittleEndian<quint16>(h + 22));
    format.setSampleRate(int(qFromLittleEndian<quint32>(h + 24)));
    format.setSampleFormat(QAudioFormat::Int16);
    samples = bytes.mid(44);
    return true;
}

} // namespace

ChimePlayer::ChimePlayer(const QAudioDevice &device, const QAudioFormat &format, QByteArray samples,
                         std::atomic<bool> &failed)
    : device_(device)
    , format_(format)
    , samples_(std::move(samples))
    , failed_(failed)
{}

ChimePlayer::~ChimePlayer() = default;

void ChimePlayer::play()
{
    // A fresh stream for every chime (a stopped stream does not start again reliably); each one
    // is removed once it has played to the end, so quick answers may overlap briefly.
    auto *buffer = new QBuffer(this);
    buffer->setData(samples_); // shared, not copied
    buffer->open(QIODevice::ReadOnly);
    auto *sink = new QAudioSink(device_, format_, this);
    sink->setVolume(0.8);
    connect(sink, &QAudioSink::stateChanged, this, [this, sink, buffer](QAudio::State state) {
        if (state != QAudio::IdleState && state != QAudio::StoppedState)
            return;
        disconnect(sink, nullptr, this, nullptr);
        sink->deleteLater();
        buffer->deleteLater();
    });
    sink->start(buffer);
    if (sink->error() == QAudio::OpenError || sink->error() == QAudio::FatalError)
        failed_ = true;
    else
        emit started();
}

} // namespace nb::ui

QObject *numbrook_make_chime(const char *wavPath, std::atomic<bool> *failed)
{
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    QAudioFormat format;
    QByteArray samples;
    if (device.isNull() || !nb::ui::readWav(QString::fromUtf8(wavPath), format, samples))
        return nullptr;
    return new nb::ui::ChimePlayer(device, format, std::move(samples), *failed);
}
