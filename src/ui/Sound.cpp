#include "ui/Sound.h"

#include <QApplication>
#include <QAudioDevice>
#include <QMediaDevices>
#include <QSettings>
#include <QSoundEffect>
#include <QUrl>

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
}

Sound::~Sound() = default;

void Sound::prepare()
{
    if (prepared_)
        return;
    prepared_ = true;
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull())
        return;
    effect_ = std::make_unique<QSoundEffect>(device);
    effect_->setSource(QUrl("qrc:/sounds/right.wav"));
    effect_->setVolume(0.8f);
}

void Sound::play()
{
    if (!on_)
        return;
    prepare();
    // Loading has failed or the device went away: the bell still tells the pupil.
    if (!effect_ || effect_->status() == QSoundEffect::Error) {
        QApplication::beep();
        return;
    }
    // While the chime is still loading, play() starts it as soon as it is ready.
    effect_->play();
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
