// The right-answer chime: the compiled-in sound itself, the on/off choice kept between runs, and
// a computer without an audio device or a writable settings folder.
#include "ui/Sound.h"

#include <QAudioDevice>
#include <QDataStream>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMediaDevices>
#include <QSettings>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

namespace nb::ui {
namespace {

TEST(Sound, ChimeIsShortStartsAtOnceAndIsNotHarsh)
{
    QFile wav(":/sounds/right.wav");
    ASSERT_TRUE(wav.open(QIODevice::ReadOnly)) << "the chime is compiled in";
    const QByteArray bytes = wav.readAll();
    ASSERT_GT(bytes.size(), 44);
    ASSERT_EQ(bytes.left(4), "RIFF");
    ASSERT_EQ(bytes.mid(8, 8), "WAVEfmt ");
    QDataStream in(bytes.mid(20, 16));
    in.setByteOrder(QDataStream::LittleEndian);
    quint16 format, channels, blockAlign, bits;
    quint32 rate, byteRate;
    in >> format >> channels >> rate >> byteRate >> blockAlign >> bits;
    EXPECT_EQ(format, 1) << "plain PCM plays everywhere";
    ASSERT_EQ(bits, 16);
    ASSERT_EQ(channels, 1);
    ASSERT_EQ(bytes.mid(36, 4), "data");

    const int samples = (bytes.size() - 44) / 2;
    const double seconds = double(samples) / rate;
    EXPECT_GE(seconds, 0.1);
    EXPECT_LE(seconds, 0.5) << "a chime, not a tune";
    const auto sample = [&](int i) {
        return std::abs(qFromLittleEndian<qint16>(bytes.constData() + 44 + 2 * i)) / 32768.0;
    };
    double peak = 0, early = 0;
    for (int i = 0; i < samples; ++i) {
        peak = std::max(peak, sample(i));
        if (i < int(rate) / 100) // the first 10 ms
            early = std::max(early, sample(i));
    }
    EXPECT_GT(early, 0.05) << "audible within 10 ms: no leading silence";
    EXPECT_LT(peak, 0.8) << "headroom: no clipping";
    EXPECT_LT(sample(samples - 1), 0.01) << "ends silent, without a click";
}

class SoundChoice : public ::testing::Test
{
protected:
    QTemporaryDir dir;
    QString file() const { return dir.filePath("numbrook.conf"); }
};

TEST_F(SoundChoice, StoredValuesAreReadBackAndOddOnesMeanOn)
{
    struct Row
    {
        const char *stored; // null: nothing stored
        bool on;
    };
    const Row rows[] = {{nullptr, true}, {"false", false}, {"true", true},
                        {"0", false},    {"1", true},      {"loud", true}};
    for (const Row &r : rows) {
        QFile::remove(file());
        if (r.stored) {
            QSettings s(file(), QSettings::IniFormat);
            s.setValue("sound/on", QString(r.stored));
        }
        EXPECT_EQ(Sound(file()).on(), r.on) << (r.stored ? r.stored : "(nothing)");
    }
}

TEST_F(SoundChoice, ChoiceIsKeptForTheNextRun)
{
    for (const bool on : {false, true, false}) {
        Sound(file()).setOn(on);
        EXPECT_EQ(Sound(file()).on(), on);
    }
}

TEST_F(SoundChoice, SettingsThatCannotBeWrittenOnlyLoseTheMemory)
{
    // A folder that is a file cannot be created, not even by an administrator.
    QFile blocker(dir.filePath("blocker"));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    Sound sound(dir.filePath("blocker/numbrook.conf"));
    sound.setOn(false);
    EXPECT_FALSE(sound.on()) << "the choice still holds for this run";
    sound.play(); // silent, and no complaint
    EXPECT_TRUE(Sound(dir.filePath("blocker/numbrook.conf")).on());
}

TEST_F(SoundChoice, PlayReturnsAtOnceWithOrWithoutAnAudioDevice)
{
    Sound sound(file());
    sound.prepare();
    if (QMediaDevices::audioOutputs().isEmpty()) {
        EXPECT_EQ(sound.player(), nullptr) << "no device: the bell is used";
    }
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 20; ++i)
        sound.play();
    // Generous for a sanitizer build on a busy machine; the benchmark measures the real figure.
    EXPECT_LT(clock.elapsed(), 500);

    sound.setOn(false);
    sound.play();
}

} // namespace
} // namespace nb::ui
