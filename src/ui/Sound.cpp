#include "ui/Sound.h"

#include <QApplication>
#include <QLibrary>
#include <QSettings>

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

// The chime player lives in a library of its own, loaded on first use: linking the audio
// libraries into the program would cost every start-up memory and time for a sound that may
// never play. Looked for beside the program (a build tree), then where it is installed, which is
// given relative to the program.
using MakeChime = QObject *(*)(const char *, std::atomic<bool> *);

MakeChime loadChimeLibrary()
{
    const QStringList places = {
        QCoreApplication::applicationDirPath() + "/libnumbrook_chime.so",
        QStringLiteral("libnumbrook_chime.so"), // already loaded by a program linked with it
        QCoreApplication::applicationDirPath() + "/" + QStringLiteral(NUMBROOK_CHIME_LIBRARY),
    };
    for (const QString &path : places) {
        QLibrary library(path);
        library.setLoadHints(QLibrary::PreventUnloadHint);
        if (auto make = reinterpret_cast<MakeChime>(library.resolve("numbrook_make_chime")))
            return make;
    }
    return nullptr;
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
    const MakeChime make = loadChimeLibrary();
    player_ = make ? make(kChime, &failed_) : nullptr;
    if (!player_)
        return;
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
    QMetaObject::invokeMethod(player_, "play", Qt::QueuedConnection);
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
