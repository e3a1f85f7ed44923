// The program's boxes: their look, each way of closing them, what screen readers get.
#include "ui/ProgramBox.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

#include <functional>

namespace nb::ui {
namespace {

int wrappedHeight(const QLabel &label, const QString &text)
{
    return QFontMetrics(label.font())
        .boundingRect(label.contentsRect().adjusted(0, 0, 0, 1 << 20), Qt::TextWordWrap, text)
        .height();
}

BoxRequest request(BoxRequest::Kind kind, std::string text)
{
    BoxRequest r;
    r.kind = kind;
    r.text = std::move(text);
    r.title = "NUMBROOK";
    return r;
}

TEST(ProgramBox, TextsShowWholeInTheScreenFontWithTheirLastWordsKeptTogether)
{
    QWidget screen;
    screen.resize(800, 600);
    screen.show();
    const char *texts[] = {
        "Do you want to save?",
        "You completed 10 questions in 35 seconds.Do you want another go ?",
        "You completed 5 questions in 1234 seconds. You have beaten your best time!!! Do you "
        "want another go ?",
        "You have reached level 12 before, would you like to go straight to this level now?",
        "There is already a file with this name. Use a different filename.",
    };
    for (const char *text : texts) {
        SCOPED_TRACE(text);
        ProgramBox box(request(BoxRequest::Kind::YesNo, text), 1.0, &screen);
        box.show();
        const QLabel &label = *box.textLabel();
        EXPECT_EQ(label.text(), text) << "shown exactly as given";
        EXPECT_GE(label.font().pixelSize(), 22) << "a size a child reads";
        EXPECT_EQ(label.font().family(), "Comic Sans MS");
        EXPECT_LE(box.width(), screen.width()) << "no wider than the screen it covers";
        // Every line of the text fits, and the short last word stands on a line with another.
        EXPECT_LE(wrappedHeight(label, text), label.contentsRect().height());
        const QString t = text;
        const QString head = t.left(t.lastIndexOf(' '));
        EXPECT_EQ(wrappedHeight(label, head), wrappedHeight(label, t)) << "a word left alone";
        for (int reply : {kYes, kNo}) {
            const QPushButton *b = box.button(reply);
            ASSERT_NE(b, nullptr);
            EXPECT_GE(b->height(), QFontMetrics(label.font()).height() * 2) << "large buttons";
        }
        box.close();
    }
}

TEST(ProgramBox, EachWayOfClosingGivesItsAnswer)
{
    using Act = std::function<void(ProgramBox &)>;
    const auto key = [](int k) {
        return [k](ProgramBox &) { QTest::keyClick(QApplication::focusWidget(), Qt::Key(k)); };
    };
    const auto press = [](int reply) {
        return [reply](ProgramBox &b) { QTest::mouseClick(b.button(reply), Qt::LeftButton); };
    };
    const auto typeThen = [](const char *text, int k) {
        return [text, k](ProgramBox &b) {
            QTest::keyClicks(b.inputLine(), text);
            QTest::keyClick(b.inputLine(), Qt::Key(k));
        };
    };
    const struct
    {
        const char *what;
        BoxRequest::Kind kind;
        Act act;
        int button;
        std::string text;
    } cases[] = {
        {"Enter on Yes", BoxRequest::Kind::YesNo, key(Qt::Key_Return), kYes, ""},
        {"No clicked", BoxRequest::Kind::YesNo, press(kNo), kNo, ""},
        {"Escape", BoxRequest::Kind::YesNo, key(Qt::Key_Escape), kCancel, ""},
        {"window closed", BoxRequest::Kind::YesNo, [](ProgramBox &b) { b.close(); }, kCancel, ""},
        {"letters do nothing", BoxRequest::Kind::YesNo,
         [](ProgramBox &b) {
             QTest::keyClicks(QApplication::focusWidget(), "ny");
             EXPECT_TRUE(b.isVisible());
             QTest::mouseClick(b.button(kNo), Qt::LeftButton);
         },
         kNo, ""},
        {"name and Enter", BoxRequest::Kind::Input, typeThen("Ann Smith", Qt::Key_Return), kYes,
         "Ann Smith"},
        {"a held Enter", BoxRequest::Kind::Input,
         [](ProgramBox &b) {
             QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
             QCoreApplication::sendEvent(b.inputLine(), &held);
             EXPECT_TRUE(b.isVisible()) << "the Enter that opened the box repeats";
             QTest::keyClicks(b.inputLine(), "Ann");
             QTest::keyClick(b.inputLine(), Qt::Key_Return);
         },
         kYes, "Ann"},
        {"name and Escape", BoxRequest::Kind::Input, typeThen("Ann", Qt::Key_Escape), kCancel, ""},
        {"OK by Escape", BoxRequest::Kind::Message, key(Qt::Key_Escape), kYes, ""},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        ProgramBox box(request(c.kind, "Please enter your full name."), 1.0, nullptr);
        box.show();
        box.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
        c.act(box);
        EXPECT_FALSE(box.isVisible());
        EXPECT_EQ(box.answer().button, c.button);
        EXPECT_EQ(box.answer().text, c.text);
    }
}

TEST(ProgramBox, ScreenReadersGetTheTextsAndDetailsWaitBehindTheirButton)
{
    BoxRequest r = request(BoxRequest::Kind::Message,
                           "Sorry, x.DAT could not be loaded: it is not a NUMBROOK pupil record, "
                           "or it is damaged.");
    r.details = "/records/x.DAT: it is not a pupil record (value 4 of 77 is of an unknown type).";
    ProgramBox box(r, 1.0, nullptr);
    box.show();
    EXPECT_EQ(box.accessibleDescription().toStdString(), r.text);
    QAccessibleInterface *label = QAccessible::queryAccessibleInterface(box.textLabel());
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->text(QAccessible::Name).toStdString(), r.text);
    EXPECT_EQ(box.button(kYes)->accessibleName(), "OK");
    EXPECT_EQ(box.button(kNo), nullptr);

    ASSERT_NE(box.detailsLabel(), nullptr);
    EXPECT_FALSE(box.detailsLabel()->isVisible());
    QTest::mouseClick(box.button(0), Qt::LeftButton);
    EXPECT_TRUE(box.detailsLabel()->isVisible());
    EXPECT_EQ(box.detailsLabel()->text().toStdString(), r.details);
    EXPECT_TRUE(box.isVisible()) << "showing the details does not close the box";

    ProgramBox plain(request(BoxRequest::Kind::Message, "Invalid filename"), 1.0, nullptr);
    EXPECT_EQ(plain.button(0), nullptr) << "no details, no button";
}

} // namespace
} // namespace nb::ui
