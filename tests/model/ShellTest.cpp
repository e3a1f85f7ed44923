// The start-up path, the main menu and the topic menus, as a pupil uses them.
#include "shell/Leaving.h"
#include "support/Driver.h"

#include <gtest/gtest.h>

#include <set>
#include <string_view>

namespace nb::test {
namespace {

class Shell : public ::testing::Test
{
protected:
    void SetUp() override { d.toMainMenu(); }
    Driver d;
};

TEST_F(Shell, CoverHandsOverAndExitWithNoPupilEndsAtOnce)
{
    EXPECT_EQ(d.frontName(), "mainmenu");
    EXPECT_FALSE(d.isOpen("cover"));
    EXPECT_EQ(d.caption("Label2"), "What would you like to do today?");
    d.newPupil(""); // a cancelled name leaves no pupil
    EXPECT_TRUE(d.progress().Unsaved.equalsNumber(0));
    EXPECT_TRUE(d.enabled("Command2"));
    EXPECT_FALSE(d.visible("pupilname"));
    d.click("Command1");
    EXPECT_TRUE(d.app.ended());
    EXPECT_EQ(d.platform.shown.size(), 1u) << "no offer to save";
}

TEST_F(Shell, NewAsksForTheNameAndResetsOnlyItsFields)
{
    // Every saved field holds a value of its own before NEW; exactly the listed ones become the
    // whole number 0 (DartsBest a copy of that 0) and every other one keeps its value.
    const std::set<std::string_view> reset = {
        "MakeTenBest",    "MakeAnyBest", "MakeTenSubBest", "MakeAnySubBest", "ColumnSubBest",
        "MulBest",        "Mul21Best",   "Mul31Best",      "Mul22Best",      "Mul32Best",
        "MakeTenDivBest", "SearchBest1", "SearchBest2",    "SearchBest3",    "SearchBest4",
        "PerfectionBest", "FactorBest",  "DartsBest"};
    PupilProgress &p = d.progress();
    double n = 1;
    for (const auto &f : PupilProgress::recordFields())
        p.*f.member = Value::real(n++ + 0.5);
    p.AddLevel = Value::int16(3);
    p.SearchCaller = Value::int16(2);
    EXPECT_FALSE(d.visible("pupilname")) << "no pupil yet";

    const std::string name = "Zoë Ångström" + std::string(1000, 'x'); // kept whole
    d.newPupil(name);
    ASSERT_EQ(d.platform.shown.size(), 1u);
    EXPECT_EQ(d.platform.shown[0].text, "Please enter your full name.");
    EXPECT_EQ(p.PupilName.str(), name);
    n = 1;
    for (const auto &f : PupilProgress::recordFields()) {
        const Value &v = p.*f.member;
        const double before = n++ + 0.5;
        if (f.name == "PupilName")
            continue;
        SCOPED_TRACE(std::string(f.name));
        if (reset.count(f.name)) {
            EXPECT_EQ(v.tag(), ValueTag::Int16);
            EXPECT_TRUE(v.equalsNumber(0));
        } else {
            EXPECT_EQ(v.tag(), ValueTag::Double);
            EXPECT_EQ(v.number(), before);
        }
    }
    EXPECT_EQ(p.AddLevel.whole(), 3);
    EXPECT_EQ(p.SearchCaller.whole(), 2);
    EXPECT_TRUE(p.Unsaved.equalsNumber(1));
    EXPECT_FALSE(d.enabled("Command2"));
    EXPECT_FALSE(d.enabled("Command3"));
    EXPECT_TRUE(d.visible("pupilname"));
    EXPECT_EQ(d.caption("pupilname"), name) << "the menu shows who is working";
    EXPECT_EQ(d.front().focusName(), "Command5") << "not EXIT";
}

// Only No ends without saving: a box closed or escaped goes back to the menu with nothing lost.
TEST_F(Shell, ExitWithAPupilAsksToSaveAndNoEnds)
{
    d.newPupil();
    d.progress().MulBest = Value::real(21);
    for (int i = 0; i < 2; ++i) {
        d.platform.queueCancel();
        d.click("Command1");
        EXPECT_EQ(d.platform.lastMessage(), "Do you want to save?");
        EXPECT_FALSE(d.app.ended());
        EXPECT_EQ(d.frontName(), "mainmenu");
        EXPECT_EQ(d.progress().MulBest.number(), 21);
        EXPECT_TRUE(d.progress().Unsaved.equalsNumber(1));
    }
    d.platform.queueCancel(); // closing the window asks the same
    leaveProgram(d.app);
    EXPECT_FALSE(d.app.ended());
    EXPECT_EQ(d.frontName(), "mainmenu");

    d.platform.queueNo();
    d.click("Command1");
    EXPECT_TRUE(d.app.ended());
    EXPECT_EQ(d.progress().MessageReply.whole(), kNo);
}

TEST_F(Shell, TopicButtonsOpenTheirMenusAndExitReturns)
{
    d.newPupil();
    const std::pair<const char *, const char *> topics[] = {{"Command5", "addmenu"},
                                                            {"Command6", "submenu"},
                                                            {"Command7", "mulmenu"},
                                                            {"Command8", "divmenu"}};
    for (auto [button, menu] : topics) {
        d.click(button);
        EXPECT_EQ(d.frontName(), menu);
        EXPECT_FALSE(d.isOpen("mainmenu"));
        d.click("Command7");
        EXPECT_EQ(d.frontName(), "mainmenu");
        EXPECT_FALSE(d.isOpen(menu));
        EXPECT_FALSE(d.enabled("Command2")) << "reopened menu keeps NEW disabled";
    }
}

TEST_F(Shell, OptionBoxesAreReadOnlyWhenAnActivityButtonIsPressed)
{
    d.newPupil();
    d.progress().AddNegatives = Value::int16(1);
    d.click("Command5");
    EXPECT_EQ(d.control("equationneg").value, 1) << "ticked from the flag on opening";
    EXPECT_EQ(d.control("equationdec").value, 0);
    d.click("equationneg"); // untick
    d.click("equationdec"); // tick
    EXPECT_TRUE(d.progress().AddNegatives.equalsNumber(1)) << "a click alone writes nothing";
    // The level and options are written by the activity buttons, whether or not the activity
    // screen is in this build.
    for (auto [button, level] :
         {std::pair{"Command4", 1}, {"Command11", 2}, {"Command6", 3}, {"Command5", 4}}) {
        if (!d.reachable(button))
            continue;
        d.click(button);
        EXPECT_EQ(d.progress().AddLevel.whole(), level);
        EXPECT_TRUE(d.progress().AddNegatives.equalsNumber(0));
        EXPECT_TRUE(d.progress().AddDecimals.equalsNumber(1));
        if (d.frontName() != "addmenu") {
            d.app.close(d.front());
            d.open("addmenu");
        }
    }
}

TEST_F(Shell, PairMenuLevelsComeFromTheButtonsPlaceAndExitLeavesItOpenBehind)
{
    d.newPupil();
    d.click("Command9");
    for (int i = 0; i < 3; ++i) {
        d.click("fourlev", i);
        EXPECT_EQ(d.progress().FourRowOptionB.whole(), i + 1);
        EXPECT_EQ(d.frontName(), "pairmenu");
    }
    d.click("Command7");
    EXPECT_EQ(d.frontName(), "mainmenu");
    EXPECT_TRUE(d.isOpen("pairmenu"));
    d.click("Command9");
    EXPECT_EQ(d.frontName(), "pairmenu");
    EXPECT_FALSE(d.isOpen("mainmenu"));
}

TEST_F(Shell, UnbuiltActivitiesAreDisabled)
{
    d.newPupil();
    d.click("Command5");
    EXPECT_EQ(d.enabled("Command9"), d.registry.has("ADD333b"));
    EXPECT_EQ(d.enabled("Command2"), d.registry.has("ADD333"));
}

TEST_F(Shell, SoundBoxFollowsTheComputersChoiceAndLeavesTheRecordAlone)
{
    d.newPupil();
    const PupilProgress before = d.progress();
    EXPECT_EQ(d.front().ctl("chkSound").value, 1) << "sound starts on";
    d.click("chkSound");
    EXPECT_FALSE(d.platform.soundOn());
    EXPECT_TRUE(d.platform.shown.size() == 1u) << "only the name box: no question";
    // The menu opens afresh after a topic menu; it shows the kept choice, and turning sound back
    // on reaches the platform too.
    d.click("Command5");
    d.click("Command7");
    EXPECT_EQ(d.front().ctl("chkSound").value, 0);
    d.click("chkSound");
    EXPECT_TRUE(d.platform.soundOn());
    for (const auto &f : PupilProgress::recordFields())
        EXPECT_TRUE(d.progress().*f.member == before.*f.member) << f.name;
}

TEST_F(Shell, SoundBoxStaysClearOfEveryOtherControl)
{
    const Control &sound = d.front().ctl("chkSound");
    const auto inside = [](const Control &c) {
        return c.left >= 0 && c.top >= 0 && c.left + c.width <= 12000 && c.top + c.height <= 9000;
    };
    EXPECT_TRUE(inside(sound));
    for (const Control &c : d.front().controls()) {
        if (c.name == "chkSound")
            continue;
        const bool apart = c.left >= sound.left + sound.width || sound.left >= c.left + c.width ||
                           c.top >= sound.top + sound.height || sound.top >= c.top + c.height;
        EXPECT_TRUE(apart) << c.name << " overlaps the sound box";
    }
}

} // namespace
} // namespace nb::test
