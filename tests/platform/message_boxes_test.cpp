#include "controls/form.h"
#include "platform/desktop_message_boxes.h"
#include "support/guard_fixture.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace qinghe::testing {
namespace {

/// Real boxes, answered from inside their own loop.
class MessageBoxTest : public GuardTest {
protected:
    /// Runs `look` on the box that comes up, which has to close it.
    static void whenShown(const std::function<void(QMessageBox&)>& look) {
        QTimer::singleShot(0, qApp, [look] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            look(*box);
        });
    }
    Answer show(MessageStyle style, const std::function<void(QMessageBox&)>& look) {
        whenShown(look);
        return boxes.show(u"正文"_s, style, u"标题"_s);
    }
    Answer press(MessageStyle style, QMessageBox::StandardButton button) {
        return show(style, [button](QMessageBox& box) { box.button(button)->click(); });
    }
    Answer escape(MessageStyle style) {
        return show(style, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    }

    DesktopMessageBoxes boxes;
};

TEST_F(MessageBoxTest, ButtonsAndIconFollowTheStyle) {
    struct Expected {
        MessageStyle style;
        QMessageBox::StandardButtons buttons;
        QMessageBox::Icon icon;
    };
    constexpr auto ok = QMessageBox::Ok, cancel = QMessageBox::Cancel;
    for (const Expected& expected :
         {Expected{MessageStyle::Ok, ok, QMessageBox::NoIcon},
          Expected{MessageStyle::OkCancel, ok | cancel, QMessageBox::NoIcon},
          Expected{MessageStyle::OkWarning, ok, QMessageBox::Warning},
          Expected{MessageStyle::OkCancelWarning, ok | cancel, QMessageBox::Warning},
          Expected{MessageStyle::OkInformation, ok, QMessageBox::Information},
          Expected{MessageStyle::OkCancelInformation, ok | cancel, QMessageBox::Information},
          Expected{MessageStyle::YesNoQuestion, QMessageBox::Yes | QMessageBox::No, QMessageBox::Question}}) {
        show(expected.style, [&](QMessageBox& box) {
            EXPECT_EQ(box.standardButtons(), expected.buttons) << static_cast<int>(expected.style);
            EXPECT_EQ(box.icon(), expected.icon) << static_cast<int>(expected.style);
            box.reject();
        });
    }
}

TEST_F(MessageBoxTest, TextAndTitleArePlainText) {
    whenShown([](QMessageBox& box) {
        EXPECT_EQ(box.text(), u"<b>饭</b>"_s);
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), u"提醒"_s);
        for (const QLabel* label : box.findChildren<QLabel*>())
            EXPECT_FALSE(label->text() == box.text() && label->textFormat() != Qt::PlainText);
        box.accept();
    });
    boxes.show(u"<b>饭</b>"_s, MessageStyle::Ok, u"提醒"_s);
}

TEST_F(MessageBoxTest, StaysOnTheScreenWhateverItsText) {
    const QString endless[] = {QString(1'000'000, u'长'), QString(1'000'000, u'a'), u"行\n"_s.repeated(100'000)};
    for (const QString& text : endless) {
        const auto look = [](QMessageBox& box) {
            EXPECT_LE(box.height(), box.screen()->availableGeometry().height());
            EXPECT_LE(box.width(), box.screen()->availableGeometry().width());
            EXPECT_TRUE(box.text().contains(u" 个字）"_s));
            box.accept();
        };
        whenShown(look);
        boxes.show(text, MessageStyle::Ok, {});
        whenShown([&](QMessageBox& box) {
            EXPECT_TRUE(box.text().contains(u"程序将关闭。记录都在。"_s));
            look(box);
        });
        boxes.showError(13, text, u"记录都在。"_s);
    }
}

TEST_F(MessageBoxTest, AMessageWithoutATitleBearsTheProgramsName) {
    whenShown([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), u"青禾家庭记账本"_s);
        box.accept();
    });
    boxes.show(u"正文"_s, MessageStyle::Ok, {});
}

TEST_F(MessageBoxTest, AShortTextLeavesRoomForTheTitle) {
    whenShown([](QMessageBox& box) {
        EXPECT_GE(box.width(), QFontMetrics(box.font()).horizontalAdvance(box.windowTitle()) + 100);
        box.accept();
    });
    boxes.show(u"好"_s, MessageStyle::Ok, {});
}

TEST_F(MessageBoxTest, WordsWithoutAnIconBeginAtTheMarginOfTheBox) {
    show(MessageStyle::OkCancel, [](QMessageBox& box) {
        const auto* words = box.findChild<QLabel*>(u"qt_msgbox_label"_s);
        ASSERT_TRUE(words);
        EXPECT_LE(words->x(), box.layout()->contentsMargins().left() + box.layout()->spacing());
        box.reject();
    });
}

TEST_F(MessageBoxTest, EveryButtonGivesItsAnswer) {
    EXPECT_EQ(press(MessageStyle::OkWarning, QMessageBox::Ok), Answer::Ok);
    EXPECT_EQ(press(MessageStyle::OkCancel, QMessageBox::Ok), Answer::Ok);
    EXPECT_EQ(press(MessageStyle::OkCancel, QMessageBox::Cancel), Answer::Cancel);
    EXPECT_EQ(press(MessageStyle::YesNoQuestion, QMessageBox::Yes), Answer::Yes);
    EXPECT_EQ(press(MessageStyle::YesNoQuestion, QMessageBox::No), Answer::No);
}

TEST_F(MessageBoxTest, TheLetterOfAButtonPressesItAndIsToldInItsToolTip) {
    struct Letter {
        MessageStyle style;
        QMessageBox::StandardButton button;
        Qt::Key key;
        QString tip;
        Answer answer;
    };
    for (const Letter& letter :
         {Letter{MessageStyle::OkCancel, QMessageBox::Ok, Qt::Key_O, u"确定（O）"_s, Answer::Ok},
          {MessageStyle::OkCancel, QMessageBox::Cancel, Qt::Key_C, u"取消（C）"_s, Answer::Cancel},
          {MessageStyle::YesNoQuestion, QMessageBox::Yes, Qt::Key_Y, u"是（Y）"_s, Answer::Yes},
          {MessageStyle::YesNoQuestion, QMessageBox::No, Qt::Key_N, u"否（N）"_s, Answer::No}})
        EXPECT_EQ(show(letter.style,
                       [&](QMessageBox& box) {
                           EXPECT_EQ(box.button(letter.button)->toolTip(), letter.tip);
                           const QList<QAbstractButton*> buttons = box.buttons();
                           QTest::keyClick(buttons.front(), letter.key);             // whichever has the keyboard
                           QTimer::singleShot(1000, &box, [&box] { box.done(-1); }); // of a box that nobody answered
                       }),
                  letter.answer)
            << letter.tip.toStdString();
}

TEST_F(MessageBoxTest, ButtonsAreInChinese) {
    const auto captions = [](const QMessageBox& box) {
        QStringList texts;
        for (const QAbstractButton* button : box.buttons())
            texts << button->text();
        texts.sort();
        return texts;
    };
    show(MessageStyle::OkCancel, [&](QMessageBox& box) {
        EXPECT_EQ(captions(box), (QStringList{u"取消"_s, u"确定"_s}));
        box.reject();
    });
    show(MessageStyle::YesNoQuestion, [&](QMessageBox& box) {
        EXPECT_EQ(captions(box), (QStringList{u"否"_s, u"是"_s}));
        box.reject();
    });
}

TEST_F(MessageBoxTest, EscTakesNothingForGranted) {
    EXPECT_EQ(escape(MessageStyle::Ok), Answer::Ok);
    EXPECT_EQ(escape(MessageStyle::OkCancelWarning), Answer::Cancel);
    EXPECT_EQ(escape(MessageStyle::OkCancelInformation), Answer::Cancel);
    EXPECT_EQ(escape(MessageStyle::YesNoQuestion), Answer::No);
}

TEST_F(MessageBoxTest, ARunTimeErrorIsToldWholeWithItsNumber) {
    whenShown([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), u"青禾家庭记账本"_s);
        EXPECT_TRUE(box.text().contains(u"13"_s));
        EXPECT_TRUE(box.text().contains(u"类型不匹配：<十二元>"_s));
        EXPECT_TRUE(box.text().endsWith(u"程序将关闭。都已保留"_s));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        box.accept();
    });
    boxes.showError(13, u"类型不匹配：<十二元>"_s, u"都已保留"_s);
}

TEST_F(MessageBoxTest, ABoxStandsOverTheActiveWindow) {
    QWidget window;
    window.show();
    QApplication::setActiveWindow(&window);
    show(MessageStyle::Ok, [&](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), &window);
        box.accept();
    });
    QApplication::setActiveWindow(nullptr); // as for a moment after a box has closed
    show(MessageStyle::Ok, [&](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), &window);
        box.accept();
    });
    window.hide();
    show(MessageStyle::Ok, [&](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), nullptr);
        box.accept();
    });
}

TEST_F(MessageBoxTest, ABoxComesOverANoticeThatItKeepsFromBeingUsed) {
    const auto over = [this](bool error) {
        bool onTop = false;
        whenShown([&](QMessageBox& box) {
            onTop = box.windowFlags() & Qt::WindowStaysOnTopHint;
            box.accept();
        });
        error ? boxes.showError(13, u"出错了"_s, {}) : void(boxes.show(u"正文"_s, MessageStyle::Ok, {}));
        return onTop;
    };
    Form notice(u"Form6"_s, Form::Kind::Notice, Ground::Dialog);
    EXPECT_FALSE(over(false)); // other programs' windows are left alone
    notice.showForm();
    EXPECT_TRUE(over(false));
    EXPECT_TRUE(over(true));
}

TEST_F(MessageBoxTest, TicksWaitWhileABoxIsOpen) {
    handlers::enter([this] {
        show(MessageStyle::Ok, [this](QMessageBox& box) {
            handlers::tick(this, [this] { log << u"tick"_s; });
            EXPECT_FALSE(log.contains(u"tick"_s));
            box.accept();
        });
        log << u"after"_s;
    });
    EXPECT_LT(log.indexOf(u"after"_s), log.indexOf(u"tick"_s));
}

} // namespace
} // namespace qinghe::testing
