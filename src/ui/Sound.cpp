#include "ui/Sound.h"

#include <QApplication>
#include <QAudioDevice>
#include <QMediaDevices>
#include <QSettings>
#include <QSoundEffect>
#include <QUrl>

#include <memory>

namespace nb::ui {

namespace {

const char *const kSoundKey = "sound/on";

std::unique_ptr<QSettings> openSettings(const QString &file)
{
    if (file.isEmpty())
        return std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                           "numbrook", "numbrook");
    return std::make_unique<QSettings>(file, QSettings::IniFormat);
}

} // namespace

Sound::Sound(QString settingsFile)
    : settingsFile_(std::move(settingsFile))
{
    // A missing, unreadable or odd value means sound on.
    on_ = openSettings(settingsFile_)->value(kSoundKey, true).toBool();
    audio_.setObjectName("numbrook audio");
}

Sound::~Sound()
{
    if (!effect_)
        return;
    // The effect belongs to the audio thread and is deleted there, before the thread ends.
    QMetaObject::invokeMethod(
        effect_, [e = effect_] { delete e; }, Qt::BlockingQueuedConnection);
    audio_.quit();
    audio_.wait();
}

void Sound::prepare()
{
    if (prepared_)
        return;
    prepared_ = true;
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull())
        return;
    audio_.start();
    effect_ = new QSoundEffect(device);
    effect_->moveToThread(&audio_);
    QSoundEffect *e = effect_;
    std::atomic<bool> *failed = &failed_;
    QMetaObject::invokeMethod(
        e,
        [e, failed] {
            QObject::connect(e, &QSoundEffect::statusChanged, e,
                             [e, failed] { failed->store(e->status() == QSoundEffect::Error); });
            e->setSource(QUrl("qrc:/sounds/right.wav"));
            e->setVolume(0.8f);
        },
        Qt::QueuedConnection);
}

void Sound::play()
{
    if (!on_)
        return;
    prepare();
    // No device, or the chime could not be loaded or played: the bell still tells the pupil.
    if (!effect_ || failed_.load()) {
        QApplication::beep();
        return;
    }
    // While the chime is still loading, play() starts it as soon as it is ready.
    QMetaObject::invokeMethod(effect_, "play", Qt::QueuedConnection);
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
