#include "controls/key_gate.h"
#include "controls/text_box.h"
#include "window_fixture.h"

#include <QDialog>
#include <QPushButton>
#include <QVBoxLayout>

// Enter and Space that are held press no button and answer no box; they go on entering text.

namespace qinghe::testing {
namespace {

class HeldKeys : public WindowTest {
protected:
    enum class Stroke { Fresh, Repeated };

    static void press(QWidget& control, Qt::Key key, Stroke stroke, quint64 at = 0) {
        const QString text = key == Qt::Key_Space ? u" "_s : u"\r"_s;
        const auto send = [&](QEvent::Type type) {
            QKeyEvent event(type, key, {}, text, stroke == Stroke::Repeated);
            event.setTimestamp(at);
            QCoreApplication::sendEvent(&control, &event);
        };
        send(QEvent::KeyPress);
        send(QEvent::KeyRelease);
    }

    KeyGate gate;
};

/// A question with one answer, as the desktop's message boxes are made.
class Question : public QDialog {
public:
    Question() {
        auto* lines = new QVBoxLayout(this);
        lines->addWidget(&typed);
        lines->addWidget(&answer);
        answer.setDefault(true);
        connect(&answer, &QPushButton::clicked, this, [this] { ++answers; });
        show();
    }

    QPushButton answer;
    QLineEdit typed;
    int answers = 0;
};

TEST_F(HeldKeys, PressNoButton) {
    auto& button = put<CommandButton>(form, u"Command5"_s, {300, 300, 1500, 300}, u"删除"_s);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        press(button, key, Stroke::Repeated);
        EXPECT_EQ(noted(), QStringList()) << key;
        press(button, key, Stroke::Fresh);
        EXPECT_EQ(noted(), QStringList{u"Command5"_s}) << key;
    }
}

TEST_F(HeldKeys, AnswerNoBox) {
    Question question;
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        press(question.answer, key, Stroke::Repeated);
    press(question, Qt::Key_Return, Stroke::Repeated);       // the default button's
    press(question.typed, Qt::Key_Return, Stroke::Repeated); // the same, from a box in it
    EXPECT_EQ(question.answers, 0);
    press(question.answer, Qt::Key_Return, Stroke::Fresh);
    EXPECT_EQ(question.answers, 1);
}

TEST_F(HeldKeys, AreKnownByTheMomentOfTheirRelease) {
    // The desktop's own repetition: up and down again at once, without a mark.
    auto& button = put<CommandButton>(form, u"Command5"_s, {300, 300, 1500, 300}, u"删除"_s);
    press(form, Qt::Key_Return, Stroke::Fresh, 700);
    press(button, Qt::Key_Return, Stroke::Fresh, 700);
    EXPECT_EQ(noted(), QStringList());
    press(button, Qt::Key_Return, Stroke::Fresh, 950);
    EXPECT_EQ(noted(), QStringList{u"Command5"_s});
}

TEST_F(HeldKeys, GoOnEnteringText) {
    auto& line = put<TextBox>(form, u"tx2"_s, {300, 300, 3000, 375});
    QList<int> keys;
    line.KeyPress = [&keys](int code) { keys << code; };
    press(line, Qt::Key_Space, Stroke::Repeated);
    press(line, Qt::Key_Return, Stroke::Repeated);
    EXPECT_EQ(line.Text(), u" "_s);
    EXPECT_EQ(keys, (QList<int>{' ', 13}));
    Question question;
    press(question.typed, Qt::Key_Space, Stroke::Repeated);
    EXPECT_EQ(question.typed.text(), u" "_s);
}

TEST_F(HeldKeys, PressOnceInABoxWhoseEnterIsAButton) {
    auto& password = put<TextBox>(form, u"Text2"_s, {300, 300, 3000, 375});
    password.setEnterPressesOnce();
    int presses = 0;
    password.KeyPress = [&presses](int) { ++presses; };
    press(password, Qt::Key_Return, Stroke::Repeated);
    EXPECT_EQ(presses, 0);
    press(password, Qt::Key_Return, Stroke::Fresh);
    EXPECT_EQ(presses, 1);
}

TEST_F(HeldKeys, NothingReachesAControlOutOfView) {
    auto& button = put<CommandButton>(form, u"Command5"_s, {300, 300, 1500, 300}, u"删除"_s);
    button.setShown(false);
    press(button, Qt::Key_Return, Stroke::Fresh);
    EXPECT_EQ(noted(), QStringList());
}

} // namespace
} // namespace qinghe::testing
