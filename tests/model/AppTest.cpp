// Screen navigation: show, bring to front, close (deferred while the screen's own event runs),
// program end.
#include "core/App.h"
#include "core/Screen.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace nb::test {
namespace {

int openings = 0;
int destroyed = 0;
int activations = 0;

class Probe : public Screen
{
public:
    explicit Probe(App &app)
        : Screen(app)
    {
        button("go", "Go", 0, 0, 100, 100);
    }
    ~Probe() override { ++destroyed; }
    void onOpened() override { ++openings; }
    void onActivated() override { ++activations; }
    void onClick(const std::string &, int) override
    {
        // Closes itself, then keeps using its own state: it must live until the event ends.
        closeSelf();
        caption("go") = "closed";
        app().show("other");
    }
};

class NavigationTest : public ::testing::Test
{
protected:
    NavigationTest()
    {
        openings = destroyed = activations = 0;
        registry.add<Probe>("probe", "Probe");
        registry.add<Probe>("other", "Other");
    }
    FakePlatform platform;
    ScreenRegistry registry;
    App app{platform, registry};
};

TEST_F(NavigationTest, ShowingAnOpenScreenBringsItForwardWithoutReopening)
{
    Screen *a = app.show("probe");
    app.show("other");
    EXPECT_EQ(app.show("probe"), a);
    EXPECT_EQ(app.front(), a);
    EXPECT_EQ(openings, 2);
    EXPECT_EQ(a->title(), "Probe");
    EXPECT_EQ(activations, 1) << "brought forward again";
    app.show("probe"); // already in front: nothing happens
    EXPECT_EQ(activations, 1);
    app.close("probe"); // the one below comes back to the front
    EXPECT_EQ(activations, 2);
    app.close("probe"); // not open any more: nothing happens
    EXPECT_EQ(activations, 2);
    EXPECT_EQ(app.openScreens().size(), 1u);
    EXPECT_EQ(app.show("nosuchscreen"), nullptr);
    EXPECT_EQ(app.keyPress(*app.front(), "go", -1, 'x'), 'x');
}

TEST_F(NavigationTest, AScreenClosedInItsOwnHandlerIsDestroyedAfterwards)
{
    app.click(*app.show("probe"), "go");
    EXPECT_EQ(destroyed, 1);
    EXPECT_FALSE(app.isOpen("probe"));
    EXPECT_EQ(app.front()->name(), "other");
}

TEST_F(NavigationTest, EndingTheProgramClosesEverythingAndStopsShowing)
{
    app.show("probe");
    app.show("other");
    app.endProgram();
    EXPECT_TRUE(app.ended());
    EXPECT_TRUE(app.openScreens().empty());
    EXPECT_EQ(destroyed, 2);
    EXPECT_EQ(app.show("probe"), nullptr);
}

} // namespace
} // namespace nb::test
