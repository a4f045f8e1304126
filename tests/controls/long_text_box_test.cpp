#include "controls/long_text_box.h"
#include "qt_printing.h"

#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

namespace qinghe {
namespace {

using namespace Qt::StringLiterals;

class LongTextBoxTest : public testing::Test {
protected:
    LongTextBoxTest() {
        page.resize(500, 400);
        box.place(150, 150, 4500, 3000);
        page.show();
    }

    QWidget page;
    LongTextBox box{&page, u"tx8"_s};
};

/// Counts the times that the room of a text changes while the text is there.
class RoomChanges : public QObject {
public:
    explicit RoomChanges(LongTextBox& box) : m_box(box) { box.viewport()->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        count += event->type() == QEvent::Resize && !m_box.document()->isEmpty();
        return QObject::eventFilter(watched, event);
    }

private:
    LongTextBox& m_box;
};

TEST_F(LongTextBoxTest, GivesItsTextAsItWasTypedWithLineEndsOfTwoCharacters) {
    box.setBoxText(u"一\n二\u00A0三\t "_s);
    EXPECT_EQ(box.Text(), u"一\r\n二\u00A0三\t "_s);
    box.setBoxText({});
    EXPECT_EQ(box.Text(), QString());
}

TEST_F(LongTextBoxTest, GivesALongTextWhole) {
    const QString text = u"天没亮就出门"_s.repeated(10'000);
    box.setBoxText(text);
    EXPECT_TRUE(box.Text() == text);
}

TEST_F(LongTextBoxTest, LaysATextOutForItsRoomAtOnce) {
    const RoomChanges changes(box);
    box.setBoxText(u"天没亮就出门"_s);
    box.setBoxText({});
    box.setBoxText(u"天没亮就出门"_s.repeated(10'000));
    QCoreApplication::processEvents();
    EXPECT_TRUE(box.verticalScrollBar()->isVisible());
    EXPECT_EQ(changes.count, 0);
}

TEST_F(LongTextBoxTest, ShowsItsScrollBarForWhatDoesNotFitAlone) {
    for (const auto& [length, needed] : {std::pair(10, false), std::pair(60'000, true), std::pair(3000, true),
                                         std::pair(10, false), std::pair(60'000, true), std::pair(0, false)}) {
        box.setBoxText(QString(length, u'字'));
        QCoreApplication::processEvents();
        EXPECT_EQ(box.verticalScrollBar()->isVisible(), needed) << length;
    }
    box.setBoxText(QString(60'000, u'字'));
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_Delete);
    QCoreApplication::processEvents();
    EXPECT_FALSE(box.verticalScrollBar()->isVisible());
}

TEST_F(LongTextBoxTest, GivesBackByCtrlZWhatWasTypedAndEmptied) {
    QTest::keyClicks(&box, u"sunny"_s);
    box.setBoxText({});
    box.setBoxText(u"程序的话"_s);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"sunny"_s);
}

TEST_F(LongTextBoxTest, GivesItBackInOneStepWithTheKeyWhosePressEmptiedIt) {
    box.KeyPress = [this](int code) {
        if (code == '!' || code == u'！')
            box.setBoxText({});
    };
    QTest::keyClicks(&box, u"abc!"_s);
    EXPECT_EQ(box.Text(), u"!"_s);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"abc"_s);
    QInputMethodEvent commit;
    commit.setCommitString(u"！"_s);
    QCoreApplication::sendEvent(&box, &commit);
    EXPECT_EQ(box.Text(), u"！"_s);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"abc"_s);
}

TEST_F(LongTextBoxTest, GivesNothingBackThatWasForgottenOrNeverTyped) {
    QTest::keyClicks(&box, u"kept"_s);
    box.forgetTyped();
    box.setBoxText(u"程序的话"_s);
    box.setBoxText({});
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), QString());
}

} // namespace
} // namespace qinghe
