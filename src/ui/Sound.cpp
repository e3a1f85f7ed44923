#include "ui/Sound.h"

#include <QApplication>
#include <QAudioSink>
#include <QBuffer>
#include <QFile>
#include <QMediaDevices>
#include <QSettings>
#include <QtEndian>

#include <memory>

namespace nb::ui {

namespace {

const char *const kSoundKey = "sound/on";
const char *const kChime = ":/sounds/right.wav";

std::unique_ptr<QSettings> openSettings(const QString &file)
{
    if (file.isEmpty())
        return std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                           "numbrook", "numbrook");
    return std::make_unique<QSettings>(file, QSettings::IniFormat);
}

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

Sound::Sound(QString settingsFile)
    : settingsFile_(std::move(settingsFile))
{
    // A missing, unreadable or odd value means sound on.
    on_ = openSettings(settingsFile_)->value(kSoundKey, true).toBool();
    audio_.setObjectName("numbrook audio");
}

Sound::~Sound()
{
    if (!player_)
        return;
    // The player belongs to the audio thread and is deleted there, before the thread ends.
    QMetaObject::invokeMethod(
        player_, [p = player_] { delete p; }, Qt::BlockingQueuedConnection);
    audio_.quit();
    audio_.wait();
}

void Sound::prepare()
{
    if (prepared_)
        return;
    prepared_ = true;
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    QAudioFormat format;
    QByteArray samples;
    if (device.isNull() || !readWav(kChime, format, samples))
        return;
    player_ = new ChimePlayer(device, format, std::move(samples), failed_);
    player_->moveToThread(&audio_);
    audio_.start();
}

void Sound::play()
{
    if (!on_)
        return;
    prepare();
    // No device, or the device would not play: the bell still tells the pupil.
    if (!player_ || failed_.load()) {
        QApplication::beep();
        return;
    }
    QMetaObject::invokeMethod(player_, &ChimePlayer::play, Qt::QueuedConnection);
}

void Sound::setOn(bool on)
{
    on_ = on;
    if (on)
        prepare();
    const auto settings = openSettings(settingsFile_);
    settings->setValue(kSoundKey, on);
    settings->sync();
}

} // namespace nb::ui
