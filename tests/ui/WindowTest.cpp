// The window layer against a small test screen: layout scaling, events in both directions,
// keys seen before they are applied, boxes and timers, screens closing inside their own events.
#include "core/App.h"
#include "core/PupilProgress.h"
#include "core/Screen.h"
#include "shell/AllScreens.h"
#include "ui/ControlWidgets.h"
#include "ui/MainWindow.h"
#include "ui/QtPlatform.h"
#include "ui/ScreenView.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QListWidget>
#include <QPointer>
#include <QPrinterInfo>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <deque>

namespace nb::ui {
namespace {

// Every kind of control, with handlers that record what the model was told.
class Probe : public Screen
{
public:
    explicit Probe(App &app)
        : Screen(app)
    {
        setSize(12000, 9000);
        setBackColor(rgb(10, 120, 30));
        label("score", "0", 600, 300, 3000, 600).font.points = 18;
        button("add", "Add one", 600, 1200, 3000, 900);
        button("ask", "Ask", 4000, 1200, 3000, 900);
        button("leave", "Leave", 7400, 1200, 3000, 900);
        button("swap", "Swap", 7400, 2400, 3000, 900);
        textBox("answer", "Answer", 600, 2400, 3000, 900);
        for (int i = 10; i <= 12; ++i)
            textBox("answers", "", 600 + (i - 10) * 1000, 3600, 900, 600, i);
        checkBox("tick", "Tick me", 4000, 3600, 3000, 500);
        Control &choice = list("choice", 4000, 4300, 3000, 1500);
        choice.items = {"one", "two", "three"};
        list("slider", 600, 4500, 3000, 300).kind = ControlKind::ScrollBar; // no builder of its own
        image("photo", "no_such_picture.svg", 7400, 3600, 1500, 1500);
        canvas("board", 600, 6300, 4000, 2400).drawing.rect(0, 0, 2000, 1200, colors::white, 0);
        // A mark over the board that lets presses through to it.
        label("mark", "x", 2600, 7300, 600, 600).mouseTransparent = true;
        timer("Timer1", 40);
        setFocus("answer");
    }

    void onClick(const std::string &name, int) override
    {
        clicks.push_back(name);
        if (name == "add") {
            caption("score") = std::to_string(std::stoi(caption("score")) + 1);
            setTimer("Timer1", true);
        } else if (name == "ask") {
            caption("score") = "asking";
            caption("score") = std::to_string(platform().askYesNo("Go on?"));
        } else if (name == "leave") {
            closeSelf();
            caption("score") = "closing"; // still usable until the event ends
        } else if (name == "swap") {
            handOver("other");
        } else if (name == "board") {
            ctl("board").drawing.ellipse(0, 0, 500, 500, colors::red, colors::black);
        }
    }
    void onKeyPress(const std::string &name, int index, int &key) override
    {
        seen.push_back(ctl(name, index).caption + "|" + std::to_string(key));
        if (key == 'x')
            key = 0;
        else if (key == '7')
            caption(name, index).clear();
        else if (key == 'a')
            key = 'A';
        else if (key == 13 && caption(name, index) == "bye")
            handOver(this->name() == "probe" ? "other" : "probe");
    }
    void onChange(const std::string &name, int index) override
    {
        changes.push_back(ctl(name, index).id());
    }
    void onMouseDown(const MousePress &press) override
    {
        downs.push_back({press.name, press.x, press.y});
    }
    void onTimer(const std::string &) override { ++ticks; }
    void onScreenKey(int key) override { screenKeys.push_back(key); }

    struct Down
    {
        std::string name;
        double x, y;
    };
    std::vector<std::string> clicks, seen, changes;
    std::vector<Down> downs;
    std::vector<int> screenKeys;
    int ticks = 0;
};

class WindowTest : public ::testing::Test
{
protected:
    WindowTest()
    {
        registry.add<Probe>("probe", "Probe screen");
        registry.add<Probe>("other", "Other screen");
        platform.setWindow(&window);
        platform.setAnswerer([](const BoxRequest &r) {
            ADD_FAILURE() << "unexpected box: " << r.text;
            return BoxAnswer{};
        });
    }

    Probe &open(QSize size = {800, 600})
    {
        window.resize(size);
        window.show();
        EXPECT_TRUE(window.start("probe"));
        QCoreApplication::processEvents();
        return *static_cast<Probe *>(app.front());
    }
    template<class W = QWidget> W *widget(const std::string &name, int index = -1)
    {
        auto *w = dynamic_cast<W *>(window.frontView()->widgetFor(name, index));
        EXPECT_TRUE(w) << name;
        return w;
    }
    void click(const std::string &name, int index = -1)
    {
        QTest::mouseClick(widget(name, index), Qt::LeftButton);
    }
    QString text(const std::string &name, int index = -1)
    {
        QWidget *w = widget(name, index);
        if (auto *l = dynamic_cast<QLabel *>(w))
            return l->text();
        return dynamic_cast<QLineEdit *>(w)->text();
    }

    QtPlatform platform;
    ScreenRegistry registry;
    App app{platform, registry};
    MainWindow window{app};
};

TEST_F(WindowTest, LayoutScalesUniformlyAndCentres)
{
    struct Case
    {
        QSize window;
        double scale;
        QPoint origin;
    };
    const Case cases[] = {
        {{800, 600}, 1.0, {0, 0}},
        {{1600, 1200}, 2.0, {0, 0}},
        {{1000, 600}, 1.0, {100, 0}}, // too wide: bars left and right
        {{400, 500}, 0.5, {0, 100}},  // too tall: bars above and below
    };
    open();
    for (const Case &c : cases) {
        window.resize(c.window);
        QCoreApplication::processEvents();
        SCOPED_TRACE(c.window.width());
        ScreenView *view = window.frontView();
        EXPECT_DOUBLE_EQ(view->scale(), c.scale);
        // "add" is at 600,1200 twips, 3000 x 900: 40,80 px and 200 x 60 px at scale 1.
        const QRect expected(c.origin + QPoint(40, 80) * c.scale, QSize(200, 60) * c.scale);
        EXPECT_EQ(widget("add")->geometry(), expected);
        EXPECT_EQ(widget("score")->font().pixelSize(), qRound(24 * c.scale));
        // The bars around the layout show the screen's colour.
        const QImage shot = window.grab().toImage();
        EXPECT_EQ(shot.pixelColor(1, 1), QColor(10, 120, 30));
    }
}

TEST_F(WindowTest, TitleNamesAndIdsComeFromTheModelAndClicksGoBack)
{
    Probe &p = open();
    EXPECT_EQ(window.windowTitle(), "Probe screen");
    QWidget *box = widget("answers", 11);
    EXPECT_EQ(box->objectName(), "answers(11)");
    EXPECT_EQ(box->accessibleDescription(), "answers(11)");
    EXPECT_EQ(box->accessibleName(), "answers"); // no spoken name: the control's name
    EXPECT_EQ(widget("answer")->accessibleName(), "Answer");
    EXPECT_EQ(widget("add")->accessibleName(), "Add one");
    EXPECT_EQ(widget("tick")->accessibleName(), "Tick me");
    EXPECT_EQ(widget("score")->accessibleName(), "0");
    click("add");
    click("add");
    EXPECT_EQ(p.clicks, (std::vector<std::string>{"add", "add"}));
    EXPECT_EQ(text("score"), "2");
    EXPECT_EQ(widget("score")->accessibleName(), "2");
    p.ctl("add").enabled = false; // a disabled control cannot be clicked
    window.syncAll();
    click("add");
    EXPECT_EQ(p.clicks.size(), 2u);
}

TEST_F(WindowTest, FocusFollowsTheScreensRequest)
{
    Probe &p = open();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    window.syncAll(true);
    EXPECT_TRUE(widget("answer")->hasFocus());
    click("add"); // the pressed button takes focus; the screen still wants its box
    EXPECT_TRUE(widget("answer")->hasFocus());
    p.setFocus("answers", 12);
    window.syncAll();
    EXPECT_TRUE(widget("answers", 12)->hasFocus());
    // A request already applied is not forced again by timer ticks and typing.
    widget("answer")->setFocus();
    window.syncAll();
    EXPECT_TRUE(widget("answer")->hasFocus());
    // Tab goes from box to box and never rests on a button, where Enter would press it.
    for (int i = 0; i < 8; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_FALSE(qobject_cast<QPushButton *>(QApplication::focusWidget()))
            << "Tab landed on " << QApplication::focusWidget()->objectName().toStdString();
    }
    // The screen can still give a button the focus.
    p.setFocus("leave");
    window.syncAll();
    EXPECT_TRUE(widget("leave")->hasFocus());
}

TEST_F(WindowTest, WidgetsReportTheirStateBeforeTheEvent)
{
    Probe &p = open({1600, 1200}); // scale 2: one pixel is 7.5 twips
    QTest::mousePress(widget("board"), Qt::LeftButton, {}, QPoint(20, 40));
    ASSERT_EQ(p.downs.size(), 1u);
    EXPECT_EQ(p.downs[0].name, "board");
    EXPECT_DOUBLE_EQ(p.downs[0].x, 150) << "twips from the control's corner";
    EXPECT_DOUBLE_EQ(p.downs[0].y, 300);

    click("tick");
    EXPECT_EQ(p.ctl("tick").value, 1);
    EXPECT_TRUE(widget<QCheckBox>("tick")->isChecked());
    click("tick");
    EXPECT_EQ(p.ctl("tick").value, 0);

    widget<QListWidget>("choice")->setCurrentRow(2);
    EXPECT_EQ(p.ctl("choice").listIndex, 2);
    widget<QScrollBar>("slider")->triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(p.ctl("slider").value, 10);
    EXPECT_EQ(p.changes, (std::vector<std::string>{"choice", "slider"}));

    // And the model's own changes come back without being reported as the pupil's.
    p.ctl("choice").items = {"a", "b"};
    p.ctl("choice").listIndex = 0;
    p.ctl("slider").value = 55;
    window.syncAll();
    EXPECT_EQ(widget<QListWidget>("choice")->count(), 2);
    EXPECT_EQ(widget<QListWidget>("choice")->currentRow(), 0);
    EXPECT_EQ(widget<QScrollBar>("slider")->value(), 55);
    EXPECT_EQ(p.changes.size(), 2u);
}

TEST_F(WindowTest, KeysAreSeenBeforeTheyAreApplied)
{
    struct Case
    {
        const char *before;
        QChar key;
        const char *seen;
        const char *after;
    };
    const Case cases[] = {
        {"", '1', "|49", "1"},       {"1", '2', "1|50", "12"},
        {"12", 'x', "12|120", "12"}, // swallowed
        {"12", '7', "12|55", "7"},   // the model cleared the box; the key goes into it
        {"7", 'a', "7|97", "7A"},    // the model replaced the key
    };
    Probe &p = open();
    AnswerBox *box = widget<AnswerBox>("answer");
    for (const Case &c : cases) {
        SCOPED_TRACE(c.seen);
        ASSERT_EQ(box->text(), c.before);
        QTest::keyClick(box, c.key.toLatin1());
        EXPECT_EQ(p.seen.back(), c.seen);
        EXPECT_EQ(box->text(), c.after);
        EXPECT_EQ(p.ctl("answer").caption, c.after);
    }
    QTest::keyClick(box, Qt::Key_Backspace);
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(p.seen[p.seen.size() - 2], "7A|8");
    EXPECT_EQ(p.seen.back(), "7|13");
    // One change per key that altered the text (the swallowed key altered nothing).
    EXPECT_EQ(std::count(p.changes.begin(), p.changes.end(), "answer"), 5);

    // Edits that are not typed keys (a paste, Delete) report the change too.
    box->setCursorPosition(0);
    QTest::keyClick(box, Qt::Key_Delete);
    EXPECT_EQ(p.ctl("answer").caption, "");
    EXPECT_EQ(p.changes.back(), "answer");
}

TEST_F(WindowTest, BoxesSeeTheScreenUpToDateAndTimersStandStill)
{
    Probe &p = open();
    click("add"); // starts Timer1
    QTest::qWait(300);
    EXPECT_GT(p.ticks, 0);

    std::vector<BoxRequest> asked;
    int ticksDuringBox = -1;
    platform.setAnswerer([&](const BoxRequest &r) {
        asked.push_back(r);
        EXPECT_EQ(text("score"), "asking");
        const int before = p.ticks;
        QTest::qWait(300);
        ticksDuringBox = p.ticks - before;
        return BoxAnswer{kNo, {}};
    });
    click("ask");
    ASSERT_EQ(asked.size(), 1u);
    EXPECT_EQ(asked[0].kind, BoxRequest::Kind::YesNo);
    EXPECT_EQ(asked[0].text, "Go on?");
    EXPECT_EQ(asked[0].title, "NUMBROOK");
    EXPECT_EQ(ticksDuringBox, 0);
    EXPECT_EQ(text("score"), "7");

    const int afterBox = p.ticks;
    QTest::qWait(300);
    EXPECT_GT(p.ticks, afterBox) << "timers run again once the box is answered";

    // A question closed without an answer says so; anything else unknown counts as No.
    for (const auto &[given, got] : {std::pair{kCancel, "2"}, {kYes, "6"}, {0, "7"}}) {
        platform.setAnswerer([given](const BoxRequest &) { return BoxAnswer{given, {}}; });
        click("ask");
        EXPECT_EQ(text("score"), got);
    }
}

// Keys no box takes reach the screen; a box's keys stay the box's. Presses on a mark over a
// board reach the board with screen twips. Text put into a box without keys reaches the model.
TEST_F(WindowTest, ScreenKeysPressesThroughMarksAndTextSetWithoutKeys)
{
    Probe &p = open({1600, 1200}); // one pixel is 7.5 twips
    QTest::keyClick(widget("add"), Qt::Key_A);
    QKeyEvent shifted(QEvent::KeyPress, Qt::Key_L, Qt::ShiftModifier, "L");
    QApplication::sendEvent(widget("add"), &shifted);
    QTest::keyClick(widget("answer"), Qt::Key_B);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_A, {}, "a", true);
    QApplication::sendEvent(widget("add"), &held);
    EXPECT_EQ(p.screenKeys, (std::vector<int>{'a', 'L'})) << "held keys count once";
    // A repeat sent as a release and a press at the same moment is a held key too.
    const auto send = [&](QEvent::Type type, ulong time) {
        QKeyEvent e(type, Qt::Key_A, {}, "a");
        e.setTimestamp(time);
        QApplication::sendEvent(widget("add"), &e);
    };
    send(QEvent::KeyRelease, 500);
    send(QEvent::KeyPress, 500);
    send(QEvent::KeyRelease, 540);
    send(QEvent::KeyPress, 900);
    EXPECT_EQ(p.screenKeys, (std::vector<int>{'a', 'L', 'a'}));
    EXPECT_EQ(p.ctl("answer").caption, "b");

    QWidget *mark = widget("mark");
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {},
                      mark->mapTo(&window, QPoint(4, 8)));
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {},
                        mark->mapTo(&window, QPoint(4, 8)));
    ASSERT_EQ(p.downs.size(), 1u);
    EXPECT_EQ(p.downs[0].name, "board");
    EXPECT_NEAR(p.downs[0].x, 2000 + 30, 8) << "within a pixel";
    EXPECT_NEAR(p.downs[0].y, 1000 + 60, 8);

    // A screen reader or on-screen keyboard sets the text; a mouse paste inserts it.
    widget<QLineEdit>("answer")->setText("tom.DAT");
    EXPECT_EQ(p.ctl("answer").caption, "tom.DAT");
    widget<QLineEdit>("answer")->insert("X");
    EXPECT_EQ(p.ctl("answer").caption, "tom.DATX");
    EXPECT_EQ(p.changes.back(), "answer");
    // The model's own changes are not reported back as the pupil's.
    const std::size_t reported = p.changes.size();
    p.ctl("answer").caption = "from the model";
    window.syncAll();
    EXPECT_EQ(p.changes.size(), reported);
}

// A child double-clicks START: the first click hands over, and the second press lands on
// whatever the next screen has in that place. It must do nothing there.
TEST_F(WindowTest, ADoubleClickActsOnlyOnTheScreenItWasMadeOn)
{
    open();
    QWidget *swap = widget("swap");
    const QPoint at = swap->mapTo(&window, swap->rect().center());
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, at);
    QCoreApplication::processEvents();
    ASSERT_NE(app.front(), nullptr);
    EXPECT_EQ(app.front()->name(), "other");
    EXPECT_TRUE(static_cast<Probe *>(app.front())->clicks.empty())
        << "the second press acted on the next screen";

    // On the same screen a double-click is two clicks, unless the control takes no
    // double-clicks (a game cell): then it is one.
    Probe &p = *static_cast<Probe *>(app.front());
    QWidget *add = widget("add");
    const QPoint addAt = add->mapTo(&window, add->rect().center());
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, addAt);
    QCoreApplication::processEvents();
    EXPECT_EQ(p.ctl("score").caption, "2");
    p.ctl("add").doubleClicks = false;
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, addAt);
    QCoreApplication::processEvents();
    EXPECT_EQ(p.ctl("score").caption, "3");
}

TEST_F(WindowTest, ScreensMayCloseInsideTheirOwnEventsAndTheOneBelowIsKept)
{
    open();
    QPointer<ScreenView> first = window.frontView();
    click("leave");
    EXPECT_EQ(app.front(), nullptr);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(first.isNull());

    window.start("probe");
    click("add");
    QWidget *score = widget("score");
    app.show("other");
    window.syncAll();
    EXPECT_EQ(window.windowTitle(), "Other screen");
    app.close("other");
    window.syncAll();
    EXPECT_EQ(window.windowTitle(), "Probe screen");
    EXPECT_EQ(widget("score"), score) << "the view below was kept, not rebuilt";
    EXPECT_EQ(text("score"), "1");

    click("swap");
    EXPECT_EQ(window.windowTitle(), "Other screen");
    // Enter on "bye" hands over from inside a key press.
    AnswerBox *box = widget<AnswerBox>("answer");
    QTest::keyClicks(box, "bye");
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(app.front()->name(), "probe");
    EXPECT_EQ(window.windowTitle(), "Probe screen");
    EXPECT_NE(window.frontView()->widgetFor("answer"), box);
}

TEST_F(WindowTest, UnchangedDrawingIsNotRenderedAgain)
{
    open();
    auto *board = widget<CanvasView>("board");
    board->repaint();
    const int first = board->renders();
    EXPECT_GE(first, 1);
    board->repaint();
    window.frontView()->repaint();
    EXPECT_EQ(board->renders(), first);
    click("board"); // adds a shape: new revision
    board->repaint();
    EXPECT_EQ(board->renders(), first + 1);
}

TEST_F(WindowTest, PrintingWithoutAPrinterSavesAPdf)
{
    if (!QPrinterInfo::defaultPrinter().isNull())
        GTEST_SKIP() << "this machine has a printer";
    Probe &p = open();
    QTemporaryDir dir;
    const std::string path = dir.filePath("screen.pdf").toStdString();
    const PrintOutcome out = platform.printScreen(p, path);
    EXPECT_EQ(out.kind, PrintOutcome::Kind::SavedPdf);
    EXPECT_EQ(out.detail, path);
    EXPECT_GT(QFileInfo(QString::fromStdString(path)).size(), 1000);
    EXPECT_EQ(platform.printScreen(p, dir.filePath("no/such/folder/x.pdf").toStdString()).kind,
              PrintOutcome::Kind::Failed);
}

TEST_F(WindowTest, ClosingTheWindowAsksTheProgramAndEndingItCloses)
{
    open();
    int asked = 0;
    // The program declines to end (as when it offers to save and shows the save screen).
    window.setCloseRequest([&] {
        ++asked;
        app.show("other");
    });
    window.close();
    QCoreApplication::processEvents();
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(app.ended());
    EXPECT_EQ(window.windowTitle(), "Other screen");
    // The program ends (as on EXIT): the window closes.
    QSignalSpy finished(&window, &MainWindow::finished);
    app.endProgram();
    EXPECT_TRUE(finished.wait(1000));
    EXPECT_FALSE(window.isVisible());
}

// ---- The program's own screens from the keyboard ----

// The real platform with the draws a test chooses (then the clock-seeded ones).
class ScriptedPlatform : public QtPlatform
{
public:
    double random() override
    {
        if (draws.empty())
            return QtPlatform::random();
        const double d = draws.front();
        draws.pop_front();
        return d;
    }
    // The draw that makes Int(n r) + lo come out as v.
    void queue(int v, int lo, int n) { draws.push_back((v - lo + 0.5) / n); }
    std::deque<double> draws;
};

class ProgramKeys : public ::testing::Test
{
protected:
    ProgramKeys()
    {
        registerAllScreens(registry);
        platform.setWindow(&window);
        platform.setAnswerer([](const BoxRequest &r) {
            ADD_FAILURE() << "unexpected box: " << r.text;
            return BoxAnswer{};
        });
    }
    void start(const char *screen)
    {
        window.resize(800, 600);
        window.show();
        ASSERT_TRUE(window.start(screen));
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        window.syncAll(true);
    }
    QWidget *widget(const std::string &name) { return window.frontView()->widgetFor(name); }
    Control &control(const std::string &name) { return app.front()->ctl(name); }
    // A key pressed wherever the focus is, as the pupil would press it.
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget *focus = QApplication::focusWidget();
        ASSERT_NE(focus, nullptr);
        QTest::keyClick(focus, Qt::Key(key), modifiers);
    }
    // Digits and Enter from the number pad.
    void keypad(const std::string &digits)
    {
        for (char c : digits)
            press(Qt::Key_0 + (c - '0'), Qt::KeypadModifier);
        press(Qt::Key_Enter, Qt::KeypadModifier);
    }

    ScriptedPlatform platform;
    ScreenRegistry registry;
    App app{platform, registry};
    MainWindow window{app};
};

// Enter on the focused Start and Next buttons presses them, and the number pad's digits and Enter
// answer in a box.
TEST_F(ProgramKeys, EnterOnFocusedButtonsAndFromTheNumberPad)
{
    const auto question = [this] {
        for (int i = 0; i < 3; ++i) {
            platform.queue(1, 1, 9); // 100 + 100 + 100
            platform.queue(0, 0, 10);
            platform.queue(0, 0, 10);
        }
    };
    start("ADD333");
    EXPECT_EQ(QApplication::focusWidget(), widget("Command11"));
    question();
    press(Qt::Key_Return);
    EXPECT_TRUE(control("Timer1").timerOn) << "Enter on Start started the exercise";
    EXPECT_EQ(QApplication::focusWidget(), widget("Text11"));
    keypad("0");
    EXPECT_EQ(control("text17").caption, "Enter the tens.");
    keypad("0");
    keypad("3");
    ASSERT_TRUE(control("Command10").visible);
    EXPECT_EQ(control("score").caption, "1");
    EXPECT_EQ(QApplication::focusWidget(), widget("Command10"));
    question();
    press(Qt::Key_Return);
    EXPECT_FALSE(control("Command10").visible) << "Enter on Next made a new question";
    EXPECT_EQ(control("text17").caption, "Enter the units.");
    EXPECT_EQ(QApplication::focusWidget(), widget("Text11"));
    EXPECT_EQ(control("time").caption, "0");
}

TEST_F(ProgramKeys, DrillStartsOnEnterAndTakesANumberPadAnswer)
{
    platform.queue(2, 1, 10);
    platform.queue(3, 1, 10);
    start("mul11");
    EXPECT_EQ(QApplication::focusWidget(), widget("Command11"));
    press(Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), widget("Text5"));
    ASSERT_EQ(control("text1").caption + "x" + control("text3").caption, "2x3");
    keypad("6");
    EXPECT_EQ(control("score").caption, "1");
    EXPECT_EQ(control("time").caption, "0");
}

// While a column waits for an exchange the focus is on the digit to click: Enter leaves the
// exercise running.
TEST_F(ProgramKeys, EnterWhileAnExchangeIsAwaitedDoesNothing)
{
    start("sub33");
    for (const auto &[v, lo, n] : {std::tuple{3, 1, 9},
                                   {5, 0, 10},
                                   {0, 0, 10},
                                   {2, 0, 3},
                                   {7, 0, 10},
                                   {2, 0, 10}}) // 350 - 272
        platform.queue(v, lo, n);
    press(Qt::Key_Return);
    ASSERT_FALSE(control("Text11").enabled);
    EXPECT_EQ(QApplication::focusWidget(), widget("Label2"));
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    EXPECT_EQ(app.front()->name(), "sub33");
    EXPECT_TRUE(control("Timer1").timerOn);
    EXPECT_EQ(control("time").caption, "0");
    QTest::mouseClick(widget("Label2"), Qt::LeftButton);
    EXPECT_EQ(QApplication::focusWidget(), widget("Text11"));
    keypad("8");
    EXPECT_EQ(control("text17").caption, "Enter the tens.");
}

// Captions too wide for their labels: best times shrink to show every digit, a folder path loses
// its middle on screen but not for screen readers; the name on the best-times screen is read-only.
TEST_F(ProgramKeys, LongCaptionsFitTheirLabels)
{
    PupilProgress &p = app.progress();
    p.PupilName = Value::text("Ann Smith");
    p.AddBestNormal1 = Value::int32(123456789);
    p.AddBestNeg1 = Value::real(37.5);
    start("besttimes");
    for (int member : {0, 1}) {
        auto *cell = static_cast<QLabel *>(window.frontView()->widgetFor("Label39", member));
        SCOPED_TRACE(cell->text().toStdString());
        EXPECT_LE(QFontMetrics(cell->font()).horizontalAdvance(cell->text()),
                  cell->contentsRect().width());
    }
    auto *name = static_cast<QLineEdit *>(widget("namebox"));
    EXPECT_TRUE(name->isReadOnly());
    QTest::keyClicks(name, "xy");
    EXPECT_EQ(name->text(), "Ann Smith");

    QTemporaryDir dir;
    const QString deep = dir.filePath("a folder with a rather long name/and another one/"
                                      "and a third to make the path far too wide/records");
    ASSERT_TRUE(QDir().mkpath(deep));
    p.RecordFolder = Value::text(deep.toStdString());
    app.show("Filesystem");
    window.syncAll();
    auto *path = static_cast<QLabel *>(widget("lbldirname"));
    EXPECT_EQ(control("lbldirname").caption, deep.toStdString());
    EXPECT_TRUE(path->text().contains(QChar(0x2026))) << path->text().toStdString();
    EXPECT_TRUE(path->text().endsWith("records"));
    EXPECT_EQ(path->toolTip(), deep);
    EXPECT_EQ(path->accessibleName(), deep);
}

} // namespace
} // namespace nb::ui
