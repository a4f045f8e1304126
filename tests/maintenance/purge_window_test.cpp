#include "maintenance/purge_rig.h"
#include "platform/desktop_message_boxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>

// The purge window: how it comes and goes, what it shows, and where its date comes from.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class PurgeWindowTest : public PurgeTest {
protected:
    /// Of a real box on the screen, which is answered with no.
    QRect placeOfQuestion() {
        rig.program->shared().services.messages = std::make_unique<DesktopMessageBoxes>();
        window()->activateWindow();
        QRect place;
        QTimer::singleShot(0, window(), [&place] {
            auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(question);
            place = question->frameGeometry();
            question->button(QMessageBox::No)->click();
        });
        rig.click(inside<CommandButton>(purge::Start));
        return place;
    }
    /// The ticks and the date on the screen.
    QRect asked() {
        const auto& records = inside<Frame>(purge::Records);
        return {records.mapToGlobal(QPoint()), records.size()};
    }
    Form* picker() { return rig.loaded(forms::DatePicker); }
    void openPicker() {
        rig.click(date());
        rig.settle();
    }
    void pick(int index) {
        rig.doubleClick(rig.at(date_picker::Day[index]));
        rig.settle();
    }
    /// The control stands in its container as told, in twips.
    template<class T>
    void expectPlace(const QString& name, const QString& container, double left, double top, double width,
                     double height) {
        const T& control = inside<T>(name);
        EXPECT_EQ(control.parentWidget()->objectName(), container) << name.toStdString();
        EXPECT_EQ((std::array{control.Left(), control.Top(), control.Width(), control.Height()}),
                  (std::array{left, top, width, height}))
            << name.toStdString();
    }
    bool dateShown() {
        const bool shown = date().Visible();
        EXPECT_EQ(inside<Label>(purge::DateWords).Visible(), shown);
        EXPECT_EQ(inside<Label>(purge::BeforeWords).Visible(), shown);
        return shown;
    }
};

TEST_F(PurgeWindowTest, OpensBesideTheMainWindowWhenItsBoxIsTicked) {
    ASSERT_TRUE(window());
    EXPECT_TRUE(window()->isVisible());
    EXPECT_FALSE(window()->isModal());
    EXPECT_TRUE(rig.mainWindow().isVisible());
    EXPECT_EQ(window()->Caption(), u"设置-删除");
    EXPECT_EQ(window()->Width(), 6600);
    EXPECT_EQ(window()->Height(), 4680);
    // In the middle of the main window, above which it stays.
    EXPECT_EQ(window()->Left(), rig.mainWindow().Left() + (12000 - 6600) / 2);
    EXPECT_EQ(window()->Top(), rig.mainWindow().Top() + (8100 - 4680) / 2);
    EXPECT_EQ(window()->parentWidget(), &rig.mainWindow());
}

TEST_F(PurgeWindowTest, IsKeptOnTheScreenWhenTheMainWindowIsAlmostOffIt) {
    rig.click(tick());
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    rig.mainWindow().moveTo((room.right() - 40) * TwipsPerPixel, (room.bottom() - 40) * TwipsPerPixel);
    openPurge();
    EXPECT_TRUE(room.contains(window()->frameGeometry()));
}

TEST_F(PurgeWindowTest, IsOpenedByABoxAmongTheFileSettings) {
    EXPECT_EQ(tick().text(), u"选择删除记录数据...");
    EXPECT_EQ(tick().parentWidget(), &rig.at(settings::Files));
    EXPECT_EQ(rig.at(settings::Files).Caption(), u"文件设置");
    EXPECT_TRUE(rig.at(settings::Files).rect().contains(tick().geometry()));
    rig.hover(tick());
    EXPECT_EQ(tick().cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(PurgeWindowTest, GoesWhenTheBoxIsUntickedAndForgetsEverything) {
    choose({IncomeKind});
    rig.type(date(), u"2024-5-3"_s);
    rig.click(tick());
    EXPECT_FALSE(window());
    EXPECT_FALSE(tick().Value());
    openPurge();
    ASSERT_TRUE(window());
    EXPECT_FALSE(box(IncomeKind).Value());
    EXPECT_EQ(date().Text(), u"");
}

TEST_F(PurgeWindowTest, UnticksTheBoxWhenItIsClosed) {
    window()->close();
    rig.settle();
    EXPECT_FALSE(window());
    EXPECT_FALSE(tick().Value());
    EXPECT_FALSE(rig.ended());
    openPurge();
    EXPECT_TRUE(window() && tick().Value());
}

TEST_F(PurgeWindowTest, GoesWithThePageAndUnticksTheBox) {
    openPicker();
    for (const QString& label : QStringList{pages::Desktop, pages::Settings}) {
        rig.click(rig.onMain<Label>(label));
        rig.settle();
        EXPECT_FALSE(window());
        EXPECT_FALSE(picker());
        EXPECT_FALSE(tick().Value());
    }
    EXPECT_FALSE(rig.ended());
}

TEST_F(PurgeWindowTest, TakesTheDatePickerAlongWhenItGoes) {
    openPicker();
    ASSERT_TRUE(picker());
    window()->close();
    EXPECT_FALSE(picker());
}

TEST_F(PurgeWindowTest, ShowsItsControlsInTheirPlaces) {
    expectPlace<Frame>(purge::Records, forms::Purge, 240, 240, 6120, 2160);
    EXPECT_EQ(inside<Frame>(purge::Records).Caption(), u"（删除记录）项目");
    const QStringList captions{u"收入记录"_s, u"支出记录"_s, u"借入记录"_s,    u"借出记录"_s,
                               u"储蓄账户"_s, u"预算记录"_s, u"日程提醒记录"_s};
    for (int kind = 0; kind < 7; ++kind) {
        EXPECT_EQ(box(kind).text(), captions[kind]);
        EXPECT_FALSE(box(kind).Value());
        expectPlace<CheckBox>(box(kind).objectName(), purge::Records, 240 + 1440 * (kind % 4), kind < 4 ? 480 : 960,
                              kind == 6 ? 1740 : 1380, 330);
    }
    expectPlace<Label>(purge::DateWords, purge::Records, 240, 1560, 1140, 330);
    EXPECT_EQ(inside<Label>(purge::DateWords).Caption(), u"删除日期在");
    expectPlace<TextBox>(purge::Date, purge::Records, 1440, 1560, 1800, 330);
    EXPECT_EQ(date().Text(), u"");
    EXPECT_TRUE(date().isEnabled());
    expectPlace<Label>(purge::BeforeWords, purge::Records, 3360, 1560, 1500, 330);
    EXPECT_EQ(inside<Label>(purge::BeforeWords).Caption(), u"以前的记录");
    expectPlace<Frame>(purge::Explained, forms::Purge, 240, 2580, 6120, 1260);
    EXPECT_EQ(inside<Frame>(purge::Explained).Caption(), u"操作说明");
    expectPlace<Label>(purge::Explanation, purge::Explained, 240, 270, 5640, 930);
    EXPECT_EQ(inside<Label>(purge::Explanation).Caption(),
              u"<  删除的记录将无法恢复，请您在确定删除后再进行删除操作，选中需要删除的项目然后在文本框中选择日期，"
              u"点击“确定”按钮在选择日期以前的记录（包括选择的日期）将被删除。>");
    expectPlace<CommandButton>(purge::Start, forms::Purge, 4980, 4020, 1380, 390);
    EXPECT_EQ(inside<CommandButton>(purge::Start).text(), u"开始删除");
    EXPECT_TRUE(dateShown());
}

TEST_F(PurgeWindowTest, HasADataControlOfItsOwn) {
    const Adodc& own = inside<Adodc>(u"Adodc1"_s);
    EXPECT_FALSE(own.isVisible());
    EXPECT_TRUE(own.connectionString().endsWith("data.dll "_L1));
    EXPECT_NE(&own, rig.mainWindow().Adodc1);
}

TEST_F(PurgeWindowTest, HangsThePickerUnderItsDate) {
    openPicker();
    ASSERT_TRUE(picker());
    EXPECT_EQ(rig.program->shared().dateTarget, 8);
    EXPECT_EQ(picker()->Left(), 240 + 1440 + window()->Left());
    EXPECT_EQ(picker()->Top(), 240 + 1560 + window()->Top() + 330 + 400);
    EXPECT_EQ(picker()->parentWidget(), window()); // and above it
}

TEST_F(PurgeWindowTest, ClosesItsDateWhenOneIsPicked) {
    openPicker();
    pick(6);
    EXPECT_EQ(date().Text(), u"2024-6-1");
    EXPECT_FALSE(picker());
    EXPECT_FALSE(date().isEnabled());
}

TEST_F(PurgeWindowTest, TakesTheKeyboardItselfWhenItsDateIsClosedSoThatNoKeyPressesTheButton) {
    date().setFocus();
    ASSERT_EQ(QApplication::focusWidget(), &date());
    date().setUsable(false);
    EXPECT_EQ(QApplication::focusWidget(), window());
}

TEST_F(PurgeWindowTest, OpensItsDateAgainWithAnyBox) {
    for (int kind = 0; kind < 7; ++kind) {
        if (kind == AccountsKind)
            continue;
        openPicker();
        pick(6);
        ASSERT_FALSE(date().isEnabled());
        choose({kind});
        EXPECT_TRUE(date().isEnabled()) << kind;
        EXPECT_EQ(date().Text(), u"2024-6-1");
    }
}

TEST_F(PurgeWindowTest, HidesItsDateWhileTheAccountsAreTicked) {
    openPicker();
    pick(6);
    inside<Frame>(purge::Explained).setShown(false);
    choose({AccountsKind});
    EXPECT_FALSE(dateShown());
    EXPECT_TRUE(date().isEnabled());
    EXPECT_TRUE(inside<Frame>(purge::Explained).Visible());
    choose({IncomeKind, PlansKind});
    EXPECT_FALSE(dateShown());
    choose({AccountsKind});
    EXPECT_TRUE(dateShown());
    EXPECT_EQ(date().Text(), u"");
}

TEST_F(PurgeWindowTest, LetsItsDateBeTyped) {
    rig.click(date());
    EXPECT_EQ(QApplication::focusWidget(), &date());
    rig.type(date(), u"2024-5-3"_s);
    EXPECT_EQ(date().Text(), u"2024-5-3");
}

TEST_F(PurgeWindowTest, TheQuestionStandsBelowTheTicksAndTheDateThatItAsksAbout) {
    const QRect box = placeOfQuestion();
    EXPECT_GT(box.top(), asked().bottom());
    EXPECT_TRUE(window()->screen()->availableGeometry().contains(box));
}

TEST_F(PurgeWindowTest, TheQuestionStandsAboveThemWhereTheScreenEnds) {
    window()->move(window()->x(), window()->screen()->availableGeometry().bottom() - 220);
    EXPECT_LT(placeOfQuestion().bottom(), asked().top());
}

TEST_F(PurgeWindowTest, IsGoneThroughAndItsDatePickedByKeys) {
    const auto key = [this](Qt::Key pressed, const QString& text = {}) {
        QWidget* const holder = window()->focusWidget();
        QTest::sendKeyEvent(QTest::Click, holder ? holder : window(), pressed, text, Qt::NoModifier);
        rig.settle();
    };
    window()->setFocus();
    key(Qt::Key_Tab);
    key(Qt::Key_Space, u" "_s);
    EXPECT_TRUE(inside<CheckBox>(PurgeKinds[0].box).Value());
    for (std::size_t i = 1; i < PurgeKinds.size(); ++i) {
        key(Qt::Key_Tab);
        EXPECT_EQ(window()->focusWidget()->objectName(), QString(PurgeKinds[i].box));
    }
    key(Qt::Key_Tab);
    ASSERT_EQ(window()->focusWidget(), &date());
    key(Qt::Key_Down);
    key(Qt::Key_Left);
    key(Qt::Key_Return, u"\r"_s);
    EXPECT_EQ(date().Text(), u"2024-6-17");
    EXPECT_EQ(window()->focusWidget(), window()); // the date is closed again
    QTest::sendKeyEvent(QTest::Click, window(), Qt::Key_Backtab, {}, Qt::ShiftModifier);
    EXPECT_EQ(window()->focusWidget(), &rig.at(purge::Start));
    key(Qt::Key_Escape, u"\x1b"_s);
    EXPECT_FALSE(window());
    EXPECT_FALSE(tick().Value());
}

} // namespace
} // namespace qinghe::testing
