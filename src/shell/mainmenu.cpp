#include "shell/mainmenu.h"

#include "core/App.h"
#include "core/Platform.h"
#include "core/PupilProgress.h"
#include "shell/Leaving.h"

namespace nb {

namespace {
struct Topic
{
    const char *button;
    const char *spoken;
    const char *picture;
    const char *menu;
};
constexpr Topic kTopics[] = {
    {"Command5", "Addition", "topic_add.svg", "addmenu"},
    {"Command6", "Subtraction", "topic_sub.svg", "submenu"},
    {"Command7", "Multiplication", "topic_mul.svg", "mulmenu"},
    {"Command8", "Division", "topic_div.svg", "divmenu"},
    {"Command9", "Games for two", "topic_pairs.svg", "pairmenu"},
};
} // namespace

MainMenu::MainMenu(App &app)
    : Screen(app)
{
    setSize(12000, 9000);
    setBackColor(rgb(255, 248, 220));
    Control &title = label("Label1", "MENU", 600, 250, 10800, 1000);
    title.font.points = 36;
    title.font.bold = true;
    title.align = Align::Center;
    title.foreColor = rgb(230, 80, 40);
    Control &ask = label("Label2", "What would you like to do today?", 600, 1300, 10800, 600);
    ask.font.points = 18;
    ask.align = Align::Center;
    ask.foreColor = rgb(40, 40, 120);
    // Who is working, once a pupil has been chosen.
    Control &pupil = label("pupilname", "", 300, 450, 4300, 600);
    pupil.font.points = 16;
    pupil.font.bold = true;
    pupil.foreColor = rgb(40, 110, 60);
    pupil.fit = TextFit::Shrink; // a long name stays on its line, clear of the title
    pupil.visible = false;

    const std::uint32_t buttonColors[] = {rgb(150, 230, 150), rgb(140, 200, 255),
                                          rgb(255, 160, 160)};
    const char *names[] = {"Command2", "Command3", "Command1"};
    const char *captions[] = {"NEW", "LOAD", "EXIT"};
    for (int i = 0; i < 3; ++i) {
        Control &b = button(names[i], captions[i], 1500 + i * 3300, 7600, 2400, 900);
        b.font.points = 20;
        b.font.bold = true;
        b.backColor = buttonColors[i];
    }
    // Five topic pictures in two rows: three above, two centred below.
    for (int i = 0; i < 5; ++i) {
        const int row = i < 3 ? 0 : 1;
        const int col = i < 3 ? i : i - 3;
        const int left = row == 0 ? 1200 + col * 3400 : 2900 + col * 3400;
        const int top = 2100 + row * 2700;
        pictureButton(kTopics[i].button, kTopics[i].spoken, kTopics[i].picture, left, top, 3000,
                      2500);
    }
    // The right-answer chime on or off, beside the second row of topics; the choice belongs to
    // the computer rather than to a pupil's record.
    Control &sound = checkBox("chkSound", "Sound", 9750, 6650, 1900, 600);
    sound.font.points = 16;
    sound.font.bold = true;
    sound.foreColor = rgb(40, 40, 120);
    setFocus("Command2");
}

void MainMenu::onActivated()
{
    // Back in front (after a record was loaded, say): the pupil may have changed.
    onOpened();
}

void MainMenu::onOpened()
{
    ctl("chkSound").value = platform().soundOn() ? 1 : 0;
    showPupil();
    if (progress().Unsaved.equalsNumber(1)) {
        setEnabled("Command2", false);
        setEnabled("Command3", false);
        for (const Topic &t : kTopics)
            setVisible(t.button, true);
    }
}

void MainMenu::onClick(const std::string &name, int)
{
    if (name == "Command2") {
        newPupil();
    } else if (name == "Command3") {
        app().show("Filesystem");
    } else if (name == "Command1") {
        exitProgram();
    } else if (name == "chkSound") {
        platform().setSoundOn(ctl("chkSound").value == 1);
    } else {
        for (const Topic &t : kTopics)
            if (name == t.button)
                handOver(t.menu);
    }
}

void MainMenu::newPupil()
{
    PupilProgress &p = progress();
    p.PupilName = Value::text("");
    p.PupilName = Value::text(platform().inputBox("Please enter your full name.", "", ""));
    if (p.PupilName.asText().empty()) {
        p.Unsaved = Value::int16(0);
        return;
    }
    // A new pupil starts these values afresh; the drill best times are left as they are.
    Value PupilProgress::*const reset[] = {
        &PupilProgress::MakeTenBest,    &PupilProgress::MakeAnyBest,
        &PupilProgress::MakeTenSubBest, &PupilProgress::MakeAnySubBest,
        &PupilProgress::ColumnSubBest,  &PupilProgress::MulBest,
        &PupilProgress::Mul21Best,      &PupilProgress::Mul31Best,
        &PupilProgress::Mul22Best,      &PupilProgress::Mul32Best,
        &PupilProgress::MakeTenDivBest, &PupilProgress::SearchBest1,
        &PupilProgress::SearchBest2,    &PupilProgress::SearchBest3,
        &PupilProgress::SearchBest4,    &PupilProgress::PerfectionBest,
        &PupilProgress::FactorBest,
    };
    for (Value PupilProgress::*f : reset)
        p.*f = Value::int16(0);
    p.DartsBest = p.FactorBest;
    p.Unsaved = Value::int16(1);
    setEnabled("Command2", false);
    setEnabled("Command3", false);
    showPupil();
}

void MainMenu::showPupil()
{
    const PupilProgress &p = progress();
    Control &c = ctl("pupilname");
    c.caption = p.PupilName.str();
    c.visible = p.Unsaved.equalsNumber(1) && !c.caption.empty();
    // With NEW and LOAD disabled, the focus goes to the first topic rather than to EXIT.
    if (p.Unsaved.equalsNumber(1))
        setFocus("Command5");
}

void MainMenu::exitProgram()
{
    leaveProgram(app());
}

} // namespace nb
