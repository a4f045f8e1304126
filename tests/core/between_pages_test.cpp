#include "controls/long_text_box.h"
#include "core_fixture.h"

#include <QApplication>

// What is left of a page when another one comes to the front: no control of it has the keyboard, and no key does
// anything there, whatever had the keyboard and whichever way was taken.

namespace qinghe::testing {
namespace {

const QStringList Ledgers{u"srb"_s, u"zcb"_s,   u"jrb"_s,        u"jcb"_s,      u"ysb"_s,
                          u"zhb"_s, u"srflb"_s, u"zcflb"_s,      u"yhb"_s,      u"rcb"_s,
                          u"rjb"_s, u"txb"_s,   u"systuopanb"_s, u"皮肤选择"_s, u"软件皮肤"_s};

class BetweenPagesTest : public CoreTest {
protected:
    BetweenPagesTest() {
        rig.sql(u"insert into srb values('1','2024-06-01','工资','我',5,'现金','',1);"
                u"insert into zcb values('1','2024-06-02','米','店',3,'现金','',1);"
                u"insert into jrb values('户','2024-06-03',9,4,5,'甲','乙','',1);"
                u"insert into jcb values('户','2024-06-04',8,4,4,'甲','乙','',1);"
                u"insert into ysb values('2024-06-05','盐',2,'',1);"
                u"insert into zhb(账户名称,起始金额,收入,支出,借入,借出,转入,转出,余额,备注信息,区别) "
                u"values('建行',1,0,0,0,0,0,0,1,'',1);"
                u"insert into srflb values('工资','基本工资','gz');"
                u"insert into zcflb values('日常','买菜','mc');"
                u"insert into rjb values('2024-06-06','端午');"
                u"insert into rcb(日程日期,提醒时间,日程内容) values('2024-06-18','20 30','交电费');"
                u"insert into 软件皮肤 select '青禾',文件大小,皮肤文件 from 皮肤选择;"_s);
        rig.signIn();
        rig.messages->shown.clear();
    }

    QStringList tables() {
        QStringList all;
        for (const QString& table : Ledgers)
            all << table << rig.sql(u"select * from "_s + table);
        return all;
    }

    void enterCategories() {
        click(pages::Settings);
        rig.click(rig.at(settings::Categories));
    }
    void enterBorrowed() { rig.click(rig.at(loans::Picture)); }

    Frame& front() {
        for (const Page* page : main().navigation().pages())
            if (page->frame().isVisible())
                return page->frame();
        qFatal("no page is on view");
    }

    /// The controls on view that can hold the keyboard.
    std::vector<QPointer<QWidget>> holders() {
        std::vector<QPointer<QWidget>> found;
        for (auto* widget : front().findChildren<QWidget*>())
            if (widget->isVisible() && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus &&
                Placed::of(widget))
                found.emplace_back(widget);
        return found;
    }

    QStringList texts() {
        QStringList all;
        for (const auto* box : main().findChildren<TextBox*>())
            all << box->Text();
        for (const auto* box : main().findChildren<LongTextBox*>())
            all << box->Text();
        for (auto* grid : main().findChildren<MSFlexGrid*>())
            for (int row = 1; row < grid->Rows(); ++row)
                all << ProgramRig::rowText(*grid, row);
        return all;
    }

    /// A key as the window system brings it: to whoever has the keyboard.
    void key(Qt::Key key, const QString& text = {}) {
        QWindow* window = main().windowHandle();
        QTest::sendKeyEvent(QTest::Click, window, key, text, Qt::NoModifier);
    }

    /// Nothing answers to a key, and Tab begins with the page that is on view.
    void expectNobodyAnswers() {
        EXPECT_EQ(QApplication::focusWidget(), &main());
        const QStringList before = texts();
        const Frame* page = &front();
        key(Qt::Key_Space, u" "_s);
        key(Qt::Key_Return, u"\r"_s);
        key(Qt::Key_Right);
        key(Qt::Key_A, u"a"_s);
        EXPECT_EQ(texts(), before);
        EXPECT_EQ(&front(), page);
        EXPECT_FALSE(toolsOpen());
        EXPECT_TRUE(rig.messages->shown.empty()) << rig.lastMessage().text.toStdString();
        EXPECT_TRUE(rig.messages->errors.empty());
        EXPECT_FALSE(rig.ended());
        key(Qt::Key_Tab, u"\t"_s);
        const QWidget* next = QApplication::focusWidget();
        EXPECT_TRUE(next == &main() ? holders().empty() : page->isAncestorOf(next));
    }

    /// Goes to a page, gives the keyboard to each control there in turn, and leaves on every way.
    void leaveFromEverywhere(const std::function<void()>& enter) {
        const auto open = [&] {
            enter();
            // Where there is a list its box is opened as well, over a cell that no tool serves.
            for (auto* grid : front().findChildren<MSFlexGrid*>())
                if (grid->isVisible() && grid->isEnabled())
                    rig.clickCell(*grid, 1, grid->Cols() - 1);
            rig.settle();
        };
        open();
        QStringList labels;
        for (const LabelledPage& page : LabelledPages)
            labels << page.label;
        const std::size_t count = holders().size();
        for (std::size_t i = 0; i < count; ++i) {
            for (qsizetype way = 0; way <= labels.size(); ++way) {
                open();
                const auto there = holders();
                ASSERT_LT(i, there.size());
                there[i]->setFocus(Qt::MouseFocusReason);
                ASSERT_EQ(QApplication::focusWidget(), there[i]);
                SCOPED_TRACE((there[i]->objectName() + u" left by "_s + labels.value(way)).toStdString());
                if (way == labels.size())
                    enterBorrowed();
                else
                    click(labels[way]);
                rig.messages->shown.clear(); // the charts say that there is nothing to draw
                expectNobodyAnswers();
                if (HasFailure())
                    return;
            }
        }
    }
};

class EveryPageTest : public BetweenPagesTest, public ::testing::WithParamInterface<LabelledPage> {};

TEST_P(EveryPageTest, LeavesNoControlWithTheKeyboard) {
    const QStringList before = tables();
    leaveFromEverywhere([this] { click(GetParam().label); });
    EXPECT_EQ(tables(), before);
}

INSTANTIATE_TEST_SUITE_P(Labels, EveryPageTest, ::testing::ValuesIn(LabelledPages));

TEST_F(BetweenPagesTest, TheCategoriesLeaveNoControlWithTheKeyboard) {
    const QStringList before = tables();
    leaveFromEverywhere([this] { enterCategories(); });
    EXPECT_EQ(tables(), before);
}

TEST_F(BetweenPagesTest, TheBorrowedListLeavesNoControlWithTheKeyboard) {
    const QStringList before = tables();
    leaveFromEverywhere([this] { enterBorrowed(); });
    EXPECT_EQ(tables(), before);
}

TEST_F(BetweenPagesTest, TheWayToTheCategoriesLeavesNoControlWithTheKeyboard) {
    click(pages::Settings);
    auto& way = rig.at(settings::Categories);
    way.setFocus();
    key(Qt::Key_Space, u" "_s);
    ASSERT_TRUE(rig.at(categories::Page).isVisible());
    expectNobodyAnswers();
}

TEST_F(BetweenPagesTest, TheButtonThatKeepsASkinGoesAndTheKeyboardWithIt) {
    click(pages::Settings);
    rig.at(settings::ChangeSkin).setValue(true);
    auto& list = rig.at(settings::Skins);
    list.setFocus();
    key(Qt::Key_Down);
    auto& keep = rig.at(settings::KeepSkin);
    ASSERT_TRUE(keep.isVisible());
    keep.setFocus();
    key(Qt::Key_Space, u" "_s);
    ASSERT_FALSE(keep.isVisible());
    rig.messages->shown.clear();
    const QStringList before = tables();
    expectNobodyAnswers();
    EXPECT_EQ(tables(), before);
}

TEST_F(BetweenPagesTest, ABoxThatIsUntickedTakesTheKeyboardFromItsList) {
    click(pages::Settings);
    auto& box = rig.at(settings::ChangeSkin);
    box.setValue(true);
    rig.at(settings::Skins).setFocus();
    box.setValue(false);
    EXPECT_EQ(QApplication::focusWidget(), &main());
}

TEST_F(BetweenPagesTest, AReportLeavesTheKeyboardWithTheOptionThatWasChosen) {
    click(pages::Income);
    rig.click(rig.at(income::ByItem));
    rig.click(rig.at(income::Records));
    EXPECT_EQ(QApplication::focusWidget(), &rig.at(income::Records));
}

TEST_F(BetweenPagesTest, TheUsersPageBehindTheScheduleIsOutOfViewAndTakesNoKey) {
    click(pages::Users);
    auto& save = rig.at(users::Save);
    save.setFocus();
    click(pages::Schedule);
    EXPECT_TRUE(rig.at(users::Page).Visible());
    EXPECT_FALSE(rig.at(users::Page).isVisible());
    QTest::keyClick(&save, Qt::Key_Space); // even one that reaches it
    EXPECT_TRUE(rig.messages->shown.empty());
    QTest::mouseClick(&main(), Qt::LeftButton, {},
                      QPoint(30, 3)); // the bare form, which gives the users' list the keyboard
    EXPECT_EQ(QApplication::focusWidget(), &main());
    click(pages::Users);
    EXPECT_TRUE(rig.at(users::Page).isVisible());
}

TEST_F(BetweenPagesTest, AKeyThatReachesAControlOutOfViewIsDropped) {
    click(pages::Income);
    auto& save = rig.at(income::Save);
    auto& remove = rig.at(income::Remove);
    auto& option = rig.at(income::ByItem);
    auto& box = rig.at(income::Box);
    click(pages::Desktop);
    const QString before = box.Text();
    for (QWidget* control : {static_cast<QWidget*>(&save), static_cast<QWidget*>(&remove),
                             static_cast<QWidget*>(&option), static_cast<QWidget*>(&box)})
        for (const Qt::Key pressed : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Right, Qt::Key_A})
            QTest::keyClick(control, pressed);
    QInputMethodEvent composed(u"米"_s, {});
    composed.setCommitString(u"米"_s);
    QApplication::sendEvent(&box, &composed);
    EXPECT_EQ(box.Text(), before);
    EXPECT_FALSE(option.Value());
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_F(BetweenPagesTest, TheKeyboardStaysWithTheWindowWhileItIsNotTheActiveOne) {
    click(pages::Income);
    rig.at(income::Save).setFocus();
    QWidget other;
    other.show();
    other.activateWindow();
    rig.settle();
    ASSERT_EQ(QApplication::activeWindow(), &other);
    click(pages::Desktop);
    other.hide();
    main().activateWindow();
    rig.settle();
    expectNobodyAnswers();
}

} // namespace
} // namespace qinghe::testing
