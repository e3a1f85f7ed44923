// The save and load screens as a pupil or teacher uses them, in a folder of their own.
#include "activity/BestTimeCheck.h"
#include "model/RecordFileSupport.h"
#include "shell/record/RecordCodec.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>
#include <unistd.h>

namespace nb::test {
namespace {

namespace fs = std::filesystem;

class RecordScreens : public ::testing::Test
{
protected:
    void SetUp() override
    {
        root = emptyTestFolder();
        fs::create_directories(root / "docs");
        d = fresh();
    }
    void TearDown() override
    {
        d.reset();
        fs::remove_all(root);
    }

    // A new run of the program, at the main menu.
    std::unique_ptr<Driver> fresh()
    {
        auto run = std::make_unique<Driver>();
        run->platform.setDocuments((root / "docs").string());
        run->platform.setDrives({root.string()});
        run->toMainMenu();
        return run;
    }
    fs::path records() const { return root / "docs" / "NUMBROOK records"; }

    // EXIT, "Do you want to save?" Yes.
    void exitAndSave()
    {
        d->platform.queueYes();
        d->click("Command1");
    }
    // Picks a folder of the top of the drive; opening it lists its own subfolders too.
    void pickFolderOnDrive(const std::string &sub, bool open)
    {
        d->select("drvdrive", 0);
        const auto &items = d->control("dirdirectory").items;
        const auto it = std::find(items.begin(), items.end(), sub);
        ASSERT_NE(it, items.end()) << sub;
        d->select("dirdirectory", int(it - items.begin()));
        if (open)
            d->doubleClick("dirdirectory");
    }

    fs::path root;
    std::unique_ptr<Driver> d;
};

// Each name typed into a new pupil's save screen, with another pupil's record and a folder
// already there.
TEST_F(RecordScreens, SaveNameRulesAndNoOverwriting)
{
    const std::string taken = "There is already a file with this name. Use a different filename.";
    const struct
    {
        std::string typed;
        std::string file;    // written, or empty when refused
        std::string message; // when refused
    } cases[] = {
        // clang-format off
        {"sam", "sam.DAT", ""}, {"sam.dat", "sam.dat", ""}, {"abcdefgh", "abcdefgh.DAT", ""},
        {"abcdefgh.dat", "abcdefgh.dat", ""}, {"Zoë", "Zoë.DAT", ""}, // 3 characters, 4 bytes
        {"abcdefghi", "", "Invalid filename"}, {"abcdefghi.dat", "", "Invalid filename"},
        {"a.b", "", "Invalid filename"}, {"a.b.dat", "", "Invalid filename"},
        {"sam.DAT", "", "Invalid filename"}, // only ".dat" is taken as the ending
        {"to m", "", "Invalid filename"}, {"a/b", "", "Invalid filename"},
        {"", "", "File not selected!"},
        {"tom", "", taken}, {"tom.dat", "", taken}, {"TOM", "", taken}, {"ann", "", taken},
        // clang-format on
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.typed);
        fs::remove_all(records());
        fs::create_directories(records() / "ann.DAT");
        spit(records() / "tom.DAT", "someone else's record");
        d = fresh();
        d->newPupil();
        exitAndSave();
        ASSERT_EQ(d->frontName(), "Filesave");
        EXPECT_EQ(d->caption("lbldirname"), records().string());
        d->type("txtfilename", c.typed);
        d->click("cmdOK");
        EXPECT_EQ(d->app.ended(), !c.file.empty());
        EXPECT_EQ(slurp(records() / "tom.DAT"), "someone else's record");
        if (!c.file.empty()) {
            EXPECT_EQ(entries(records()).size(), 3u);
            EXPECT_EQ(slurp(records() / c.file), record::encode(d->progress()));
        } else {
            EXPECT_EQ(d->platform.lastMessage(), c.message);
            EXPECT_EQ(d->caption("txtfilename"), "") << "a refused name is cleared";
            EXPECT_EQ(entries(records()), (std::vector<std::string>{"ann.DAT", "tom.DAT"}));
        }
    }
    d->type("txtfilename", "bea");
    d->click("cmdcancel"); // writes nothing
    EXPECT_EQ(d->frontName(), "mainmenu");
    EXPECT_FALSE(d->app.ended());
    EXPECT_EQ(entries(records()).size(), 2u);
}

// A saved record, moved to a folder of its own under an upper-case name and followed by the tail
// of an older, longer record, loads and is written back there, with the tail kept past its end.
TEST_F(RecordScreens, SavedRecordLoadsAndIsWrittenBackWhereItCameFrom)
{
    d->newPupil("Zoë Łukasz");
    d->platform.queueNo();
    bestTimeCheck(d->platform, d->progress(), &d->progress().AddBestNeg3, 37.5, 10);
    exitAndSave();
    d->type("txtfilename", "zoe");
    d->click("cmdOK");
    ASSERT_TRUE(d->app.ended());
    const std::string saved = slurp(records() / "zoe.DAT");
    const fs::path folder = root / "class 4";
    const std::string tail = "--tail of an older, longer record--";
    fs::create_directories(folder);
    spit(folder / "ZOE.DAT", saved + tail);

    d = fresh();
    d->click("Command3");
    ASSERT_EQ(d->frontName(), "Filesystem");
    pickFolderOnDrive("class 4", true);
    EXPECT_EQ(d->caption("lbldirname"), folder.string());
    d->select("filfiles", 0);
    EXPECT_EQ(d->caption("txtfilename"), "ZOE.DAT");
    d->click("cmdOK");
    EXPECT_EQ(d->frontName(), "mainmenu");
    EXPECT_FALSE(d->enabled("Command2")) << "a pupil is chosen: no NEW or LOAD";
    EXPECT_FALSE(d->enabled("Command3"));
    EXPECT_EQ(d->progress().PupilName.str(), "Zoë Łukasz");
    EXPECT_EQ(d->progress().AddBestNeg3.str(), "37.5");
    EXPECT_EQ(d->progress().LoadedFileName.str(), "ZOE.DAT");
    EXPECT_TRUE(d->progress().LoadedFromFile.equalsNumber(1));
    EXPECT_TRUE(d->progress().Unsaved.equalsNumber(1));
    EXPECT_EQ(record::encode(d->progress()), saved);

    d->progress().AddBestNormal1 = Value::real(30); // 8 more bytes, over the start of the tail
    d->platform.clearShown();
    exitAndSave(); // a loaded pupil is written straight back, with no further question
    EXPECT_TRUE(d->app.ended());
    EXPECT_EQ(d->platform.shown.size(), 1u);
    EXPECT_EQ(slurp(folder / "ZOE.DAT"), record::encode(d->progress()) + tail.substr(8));
    EXPECT_EQ(entries(folder), std::vector<std::string>{"ZOE.DAT"}) << "no temporary file left";
    EXPECT_EQ(slurp(records() / "zoe.DAT"), saved);
}

// From the keyboard alone: in the name box Enter presses OK and Escape presses Cancel; each screen
// says at the top what it is for.
TEST_F(RecordScreens, EnterAndEscapeInTheNameBox)
{
    d->newPupil("Bea Lamb");
    exitAndSave();
    EXPECT_EQ(d->caption("heading"), "Save your work");
    d->type("txtfilename", "bea");
    d->key("txtfilename", 27);
    EXPECT_EQ(d->frontName(), "mainmenu");
    EXPECT_FALSE(d->app.ended());
    EXPECT_FALSE(fs::exists(records() / "bea.DAT"));
    exitAndSave();
    d->typeEnter("txtfilename", "bea");
    EXPECT_TRUE(d->app.ended());
    EXPECT_TRUE(fs::exists(records() / "bea.DAT"));

    d = fresh();
    d->click("Command3");
    EXPECT_EQ(d->caption("heading"), "Find your record");
    d->screenKey(27);
    EXPECT_EQ(d->frontName(), "mainmenu");
    d->click("Command3");
    d->typeEnter("txtfilename", "bea.DAT");
    EXPECT_EQ(d->frontName(), "mainmenu");
    EXPECT_EQ(d->progress().PupilName.str(), "Bea Lamb");
    EXPECT_EQ(d->caption("pupilname"), "Bea Lamb") << "the menu shows who is working";
    EXPECT_TRUE(d->visible("pupilname"));
}

TEST_F(RecordScreens, ALoadThatFailsChangesNothingAndSaysWhy)
{
    PupilProgress good;
    good.PupilName = Value::text("Ann");
    good.FactorBest = Value::int16(4);
    const std::string record = record::encode(good);
    fs::create_directories(records() / "folder.DAT");
    spit(records() / "ann.DAT", record);
    spit(records() / "short.DAT", record.substr(0, 10));
    spit(records() / "empty.DAT", "");
    spit(records() / "junk.DAT", std::string(record::kMaxRecordBytes + 1, '\xFF'));
    if (::geteuid() == 0) { // permissions do not stop root; reading this file fails for anyone
        fs::create_symlink("/proc/self/mem", records() / "locked.DAT");
    } else {
        spit(records() / "locked.DAT", record);
        fs::permissions(records() / "locked.DAT", fs::perms::none);
    }

    // A pupil loaded earlier in the run: every failure must leave all of this as it is.
    d->click("Command3");
    ASSERT_EQ(d->control("filfiles").items.at(0), "ann.DAT");
    d->select("filfiles", 0);
    d->doubleClick("filfiles");
    ASSERT_EQ(d->frontName(), "mainmenu");
    const std::string before = record::encode(d->progress());

    // The box says the same plain sentence for every failure; the reason is in its details.
    const struct
    {
        std::string name;
        std::string why;
    } cases[] = {
        {"", ""},
        {"short.DAT", "it is not a pupil record (it ends part-way through value 3 of 77)."},
        {"empty.DAT", "the file is empty."},
        {"folder.DAT", "it is a folder, not a record file."},
        {"junk.DAT", "it is not a pupil record (value 1 of 77 is of an unknown type (65535))."},
        {"locked.DAT", "it cannot be read ("},
        {"gone.DAT", "there is no such file in this folder."},
    };
    d->open("Filesystem");
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        d->setText("txtfilename", c.name);
        d->click("cmdOK");
        const Shown &box = d->platform.shown.back();
        if (c.name.empty()) {
            EXPECT_EQ(box.text, "You must first select a file!");
        } else {
            EXPECT_EQ(box.text, "Sorry, " + c.name +
                                    " could not be loaded: it is not a NUMBROOK pupil record, or "
                                    "it is damaged.");
            EXPECT_NE(box.details.find(c.name + ": " + c.why), std::string::npos) << box.details;
        }
        EXPECT_EQ(d->frontName(), "Filesystem");
        EXPECT_EQ(record::encode(d->progress()), before);
        EXPECT_EQ(d->progress().LoadedFileName.str(), "ann.DAT");
        EXPECT_TRUE(d->progress().LoadedFromFile.equalsNumber(1));
        EXPECT_TRUE(d->progress().Unsaved.equalsNumber(1));
    }
    d->select("filfiles", 0);
    d->click("cmdcancel"); // reads nothing
    EXPECT_EQ(d->frontName(), "mainmenu");
    EXPECT_EQ(record::encode(d->progress()), before);
}

TEST_F(RecordScreens, AFailedSaveKeepsEverythingAndCanBeRetriedElsewhere)
{
    fs::create_directories(root / "stick");
    d->newPupil();
    d->progress().MulBest = Value::real(19);
    exitAndSave();
    pickFolderOnDrive("stick", false); // its files are shown and OK will save there
    EXPECT_EQ(d->caption("lbldirname"), (root / "stick").string());
    fs::remove_all(root / "stick"); // the memory stick is pulled out
    d->type("txtfilename", "ann");
    d->click("cmdOK");
    EXPECT_FALSE(d->app.ended());
    EXPECT_EQ(d->platform.lastMessage(),
              "Your record could not be saved as ann.DAT: the folder is no longer there. Your "
              "progress is still here: choose another folder and press OK to save again.");
    EXPECT_EQ(d->caption("txtfilename"), "ann");
    EXPECT_EQ(d->progress().MulBest.number(), 19);

    d->select("drvdrive", 0);
    d->click("cmdOK");
    EXPECT_TRUE(d->app.ended());
    EXPECT_EQ(slurp(root / "ann.DAT"), record::encode(d->progress()));
}

// What a pupil sees when the disk fails, another program takes the name at that moment, or a
// teacher has locked the record: a message, progress kept, and a way to save under another name.
TEST_F(RecordScreens, SaveFailuresSayWhatHappenedAndOfferAnotherTry)
{
    const std::string theirs = "another pupil's record";
    d->newPupil();
    d->progress().MulBest = Value::real(19);
    exitAndSave();
    {
        FaultyFileCalls calls;
        calls.failStep = FaultyFileCalls::Step::Write;
        calls.failErr = ENOSPC;
        const record::UseFileCalls use(calls);
        d->type("txtfilename", "ann");
        d->click("cmdOK");
    }
    EXPECT_EQ(d->platform.lastMessage(),
              "Your record could not be saved as ann.DAT: the disk is full. Your progress is "
              "still here: choose another folder and press OK to save again.");
    EXPECT_EQ(d->caption("txtfilename"), "ann");
    EXPECT_TRUE(entries(records()).empty());
    {
        FaultyFileCalls calls;
        calls.clashWith = theirs; // saved by another machine after the name was checked
        const record::UseFileCalls use(calls);
        d->click("cmdOK");
    }
    EXPECT_EQ(d->platform.lastMessage(),
              "There is already a file with this name. Use a different filename.");
    EXPECT_EQ(d->caption("txtfilename"), "");
    EXPECT_FALSE(d->app.ended());
    EXPECT_EQ(entries(records()), std::vector<std::string>{"ann.DAT"});
    EXPECT_EQ(slurp(records() / "ann.DAT"), theirs);
    d->type("txtfilename", "ann2");
    d->click("cmdOK");
    ASSERT_TRUE(d->app.ended());
    const std::string saved = record::encode(d->progress());
    EXPECT_EQ(slurp(records() / "ann2.DAT"), saved);

    // The teacher locks the record; the pupil loads it and leaves with a new best time.
    fs::permissions(records() / "ann2.DAT", fs::perms(0444));
    d = fresh();
    d->click("Command3");
    d->setText("txtfilename", "ann2.DAT");
    d->click("cmdOK");
    d->progress().MulBest = Value::real(17);
    d->platform.clearShown();
    exitAndSave();
    EXPECT_EQ(d->platform.lastMessage(),
              "Your record could not be saved as ann2.DAT: that file is marked read-only, so it "
              "was left as it is. Your progress is still here: type a new name and press OK to "
              "save it.");
    EXPECT_FALSE(d->app.ended());
    EXPECT_EQ(d->frontName(), "Filesave");
    EXPECT_EQ(d->caption("txtfilename"), "");
    EXPECT_EQ(slurp(records() / "ann2.DAT"), saved);
    d->type("txtfilename", "ann3");
    d->click("cmdOK");
    EXPECT_TRUE(d->app.ended());
    EXPECT_EQ(d->progress().MulBest.number(), 17);
    EXPECT_EQ(slurp(records() / "ann3.DAT"), record::encode(d->progress()));
    EXPECT_EQ(slurp(records() / "ann2.DAT"), saved);
}

// A save cut short leaves a temporary file; the next LOAD or SAVE in that folder clears it once
// its program has gone.
TEST_F(RecordScreens, OpeningAFolderClearsTemporaryFilesOfSavesCutShort)
{
    fs::create_directories(records());
    for (const std::string screen : {"Filesystem", "Filesave"}) {
        SCOPED_TRACE(screen);
        spit(records() / ".numbrook-4001-0.tmp", "half a record");
        spit(records() / ".numbrook-4002-0.tmp", "half a record");
        fs::last_write_time(records() / ".numbrook-4001-0.tmp",
                            fs::file_time_type::clock::now() - std::chrono::minutes(5));
        FaultyFileCalls calls;
        const record::UseFileCalls use(calls);
        d = fresh();
        d->open(screen);
        EXPECT_EQ(entries(records()), std::vector<std::string>{".numbrook-4002-0.tmp"})
            << "a recent one may still be being written";
        fs::remove(records() / ".numbrook-4002-0.tmp");
    }
}

TEST_F(RecordScreens, DrivesFoldersAndTheFirstFolder)
{
    fs::create_directories(root / "b" / "inner");
    fs::create_directories(root / "A");
    fs::create_directories(root / ".hidden");
    spit(root / "x.DAT", "");
    spit(root / "y.dat", "");
    spit(root / "z.txt", "");
    d->platform.setDrives({root.string(), (root / "no disc").string()});

    d->click("Command3");
    EXPECT_TRUE(fs::is_directory(records())) << "made on first use";
    EXPECT_EQ(d->caption("lbldirname"), records().string());
    EXPECT_EQ(d->control("cbofiletype").items, std::vector<std::string>{"quadsum files (*.DAT)"});
    EXPECT_EQ(d->control("cbofiletype").listIndex, 0);
    EXPECT_EQ(d->control("drvdrive").listIndex, 0);
    EXPECT_EQ(d->control("dirdirectory").items, std::vector<std::string>{".."});

    d->select("drvdrive", 0);
    EXPECT_EQ(d->control("dirdirectory").items, (std::vector<std::string>{"A", "b", "docs"}))
        << "no way up from the top of a drive; hidden folders left out";
    EXPECT_EQ(d->control("filfiles").items, (std::vector<std::string>{"x.DAT", "y.dat"}));

    d->select("drvdrive", 1);
    EXPECT_EQ(d->platform.shown.back().text, "Drive error!");
    EXPECT_EQ(d->platform.shown.back().title, "Error");
    EXPECT_EQ(d->platform.shown.back().icon, MsgIcon::Exclamation);
    EXPECT_EQ(d->control("drvdrive").listIndex, 0);
    EXPECT_EQ(d->caption("lbldirname"), root.string());
    EXPECT_EQ(d->control("dirdirectory").items.size(), 3u);

    d->select("dirdirectory", 1); // "b"
    EXPECT_EQ(d->caption("lbldirname"), (root / "b").string());
    EXPECT_TRUE(d->control("filfiles").items.empty());
    d->doubleClick("dirdirectory");
    EXPECT_EQ(d->control("dirdirectory").items, (std::vector<std::string>{"..", "inner"}));
    d->select("dirdirectory", 0);
    d->doubleClick("dirdirectory");
    EXPECT_EQ(d->caption("lbldirname"), root.string());

    // Documents folder unusable: the first drive instead.
    d->click("cmdcancel");
    d->platform.setDocuments((root / "x.DAT" / "docs").string());
    d->click("Command3");
    EXPECT_EQ(d->caption("lbldirname"), root.string());
}

} // namespace
} // namespace nb::test
