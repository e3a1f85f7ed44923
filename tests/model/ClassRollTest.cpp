// A folder of records read as one table for a teacher: the right cells for every pupil, bad files
// listed with a reason and never stopping the rest, and the CSV a spreadsheet needs.
#include "shell/record/ClassRoll.h"
#include "shell/AchievementTable.h"
#include "shell/record/RecordCodec.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace nb::record {
namespace {

namespace fs = std::filesystem;

class ClassRollTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        folder = fs::temp_directory_path() /
                 ("numbrook-class-" + std::to_string(::getpid()) + "-" +
                  ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    void TearDown() override { fs::remove_all(folder); }

    void write(const std::string &file, const std::string &bytes)
    {
        std::ofstream(folder / file, std::ios::binary) << bytes;
    }
    void pupil(const std::string &file, const std::string &name,
               void (*fill)(PupilProgress &) = nullptr)
    {
        PupilProgress p;
        p.PupilName = Value::text(name);
        if (fill)
            fill(p);
        write(file, encode(p));
    }
    int slotIndex(const std::string &heading)
    {
        const auto &all = achievementSlots();
        for (std::size_t i = 0; i < all.size(); ++i)
            if (all[i].heading == heading)
                return int(i);
        ADD_FAILURE() << "no slot " << heading;
        return 0;
    }

    fs::path folder;
};

TEST_F(ClassRollTest, EveryReadableRecordIsARowAndEveryOtherFileIsExplained)
{
    pupil("ann.DAT", "Ann Smith", [](PupilProgress &p) {
        p.AddBestNeg1 = Value::real(37.5);
        p.SearchBest1 = Value::int16(3);
        p.DartsBest = Value::text("Champion.");
    });
    pupil("zoe.dat", "Zoë Łukasz", [](PupilProgress &p) { p.AddBestNeg1 = Value::real(9); });
    pupil("sam1.DAT", "Sam", nullptr);
    pupil("sam2.DAT", "Sam", [](PupilProgress &p) { p.FactorBest = Value::int16(0); });
    write("broken.DAT", "not a record at all");
    write("empty.DAT", "");
    write("notes.txt", "ignored");
    fs::create_directory(folder / "old.DAT");

    std::string problem;
    int calls = 0, lastTotal = 0;
    const auto roll = readClassFolder(folder, problem, [&](int, int total) {
        ++calls;
        lastTotal = total;
    });
    ASSERT_TRUE(roll) << problem;
    EXPECT_EQ(calls, 6);
    EXPECT_EQ(lastTotal, 6) << "record files only: no folder, no .txt";
    ASSERT_EQ(roll->pupils.size(), 4u);
    ASSERT_EQ(roll->bad.size(), 2u);
    for (const BadFile &b : roll->bad)
        EXPECT_FALSE(b.reason.empty()) << b.file;

    const PupilRow &ann = roll->pupils[0];
    EXPECT_EQ(ann.file, "ann.DAT");
    EXPECT_EQ(ann.cells[std::size_t(slotIndex("Addition 1 / Negatives"))], "37.5");
    EXPECT_EQ(ann.cells[std::size_t(slotIndex("Add search"))], "level3");
    EXPECT_EQ(ann.cells[std::size_t(slotIndex("Darts"))], "Champion.");
    EXPECT_EQ(ann.cells[std::size_t(slotIndex("Addition 1 / Normal"))], "");
    EXPECT_EQ(roll->pupils[3].name, "Zoë Łukasz");

    // Only slots somebody has used count; a 0 is no result.
    std::vector<std::string> used;
    for (std::size_t i = 0; i < roll->used.size(); ++i)
        if (roll->used[i])
            used.push_back(achievementSlots()[i].heading);
    EXPECT_EQ(used, (std::vector<std::string>{"Addition 1 / Negatives", "Add search", "Darts"}));

    // Sorted by name, duplicates kept apart by their files.
    std::vector<std::string> files;
    for (int r : byName(*roll))
        files.push_back(roll->pupils[std::size_t(r)].file);
    EXPECT_EQ(files, (std::vector<std::string>{"ann.DAT", "sam1.DAT", "sam2.DAT", "zoe.dat"}));
}

TEST_F(ClassRollTest, CsvIsWhatASpreadsheetNeeds)
{
    pupil("a.DAT", "Smith, \"Jo\"", [](PupilProgress &p) { p.MulBest = Value::real(41.25); });
    pupil("b.DAT", "Émile", [](PupilProgress &p) { p.PerfectionBest = Value::int16(12); });
    std::string problem;
    const auto roll = readClassFolder(folder, problem);
    ASSERT_TRUE(roll);
    EXPECT_EQ(classCsv(*roll, byName(*roll)), "\xEF\xBB\xBF"
                                              "Pupil,File,Times tables,Perfection\r\n"
                                              "\"Smith, \"\"Jo\"\"\",a.DAT,41.25,\r\n"
                                              "Émile,b.DAT,,level12\r\n");

    std::ostringstream out, err;
    EXPECT_EQ(csvCommand(folder.string(), out, err), 0);
    EXPECT_EQ(out.str(), classCsv(*roll, byName(*roll)));
    EXPECT_EQ(err.str(), "");
}

TEST_F(ClassRollTest, AnUnreadableFolderIsAClearFailure)
{
    std::ostringstream out, err;
    EXPECT_EQ(csvCommand((folder / "missing").string(), out, err), 1);
    EXPECT_EQ(out.str(), "");
    EXPECT_NE(err.str().find("missing"), std::string::npos) << err.str();
}

TEST_F(ClassRollTest, TwoThousandPupils)
{
    for (int i = 0; i < 2000; ++i) {
        PupilProgress p;
        p.PupilName = Value::text("Pupil " + std::to_string(i));
        p.AddBestNormal1 = Value::real(10 + i % 50);
        write("p" + std::to_string(i) + ".DAT", encode(p));
    }
    std::string problem;
    const auto roll = readClassFolder(folder, problem);
    ASSERT_TRUE(roll);
    EXPECT_EQ(roll->pupils.size(), 2000u);
    EXPECT_TRUE(roll->bad.empty());
}

} // namespace
} // namespace nb::record
