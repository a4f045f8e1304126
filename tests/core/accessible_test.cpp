#include "core/names.h"
#include "core/web_window.h"
#include "maintenance/backup_window.h"
#include "maintenance/purge_window.h"
#include "support/listener.h"
#include "support/program_test.h"

#include <set>

// What a screen reader is told of the windows and the pages.

namespace qinghe::testing {
namespace {

bool holdsChinese(const QString& text) {
    return std::ranges::any_of(text, [](QChar c) { return c.script() == QChar::Script_Han; });
}

/// Refuses what is told without a Chinese name, and what cannot be told from another control of its window.
class Inspector {
public:
    explicit Inspector(QWidget& window) { inspect(*QAccessible::queryAccessibleInterface(&window)); }

    QStringList faults;
    int controls = 0;

private:
    void inspect(QAccessibleInterface& told) {
        if (told.state().invisible)
            return;
        if (const auto* widget = qobject_cast<QWidget*>(told.object()); widget && Placed::of(widget))
            inspectControl(told, *widget);
        for (int i = 0; i < told.childCount(); ++i)
            if (QAccessibleInterface* const part = told.child(i))
                inspect(*part);
    }
    void inspectControl(QAccessibleInterface& told, const QWidget& widget) {
        const QString name = told.text(QAccessible::Name);
        ++controls;
        if (!holdsChinese(name))
            faults << u"%1 is called “%2”"_s.arg(widget.objectName(), name);
        // Words may say the same twice, and what they are in tells frames apart.
        const bool acts = told.role() != QAccessible::StaticText && told.role() != QAccessible::Grouping;
        if (acts && !m_seen.emplace(told.role(), name).second)
            faults << u"%1 is not the only “%2”"_s.arg(widget.objectName(), name);
    }

    std::set<std::pair<int, QString>> m_seen;
};

class ToldProgram : public ProgramTest {
protected:
    static QString name(QWidget& widget) {
        return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
    }
    void expectAllNamed(QWidget& window, int atLeast) {
        const Inspector inspector(window);
        EXPECT_EQ(inspector.faults, QStringList()) << window.objectName().toStdString();
        EXPECT_GE(inspector.controls, atLeast) << window.objectName().toStdString();
    }
    template<class T>
    void expectAllNamed(const qinghe::FormName<T>& form, int atLeast) {
        handlers::enter([&] {
            T& shown = shared().forms.get(form);
            shown.showForm();
        });
        rig.settle();
        Form* const shown = shared().forms.loaded(QString(form));
        ASSERT_NE(shown, nullptr);
        expectAllNamed(*shown, atLeast);
        handlers::enter([&] { shown->unload(); });
    }
};

TEST_F(ToldProgram, EveryControlOfEveryWindowHasAChineseNameOfItsOwn) {
    rig.start();
    expectAllNamed(*rig.loaded(forms::SignIn), 8);
    press(rig.at(sign_in::Enter));
    expectAllNamed(names::DatePicker, 33);
    expectAllNamed(names::Calculator, 21);
    expectAllNamed(names::Web, 1);
    expectAllNamed(names::Purge, 12);
    expectAllNamed(names::InjectSkin, 5);
    expectAllNamed(names::InjectDesktopPicture, 5);
    expectAllNamed(names::InjectSignInPicture, 5);
    handlers::enter([&] { shared().forms.get(names::Backup).turnTo(BackupWindow::Direction::Restore); });
    expectAllNamed(names::Backup, 5);
}

TEST_F(ToldProgram, EveryControlOfEveryPageHasAChineseNameOfItsOwn) {
    rig.signIn();
    shared().note(u"没有今天的副本"_s);
    for (const LabelledPage& page : LabelledPages) {
        press(rig.at(page.label));
        expectAllNamed(rig.mainWindow(), 26);
    }
    press(rig.at(settings::ChangeSkin));
    expectAllNamed(rig.mainWindow(), 32);
    handlers::enter([this] { shared().openCategories(); });
    rig.clickCell(rig.at(categories::Majors), 1, 1);
    expectAllNamed(rig.mainWindow(), 32);
    press(rig.at(pages::Charts));
    press(rig.at(charts::IncomeByItem));
    expectAllNamed(rig.mainWindow(), 34);
}

TEST_F(ToldProgram, TheReminderIsAnAlertWithNamesForAll) {
    rig.sql(u"insert into rcb values('2024-05-01', 1, '2024-05-03', '20 36', '体检', '音乐1', 1)"_s);
    rig.signIn();
    rig.clock->time = QDateTime(QDate(2024, 5, 3), QTime(20, 36, 8));
    rig.at(schedule::Watch).Tick.fromQt();
    ASSERT_NE(rig.loaded(forms::Reminder), nullptr);
    expectAllNamed(*rig.loaded(forms::Reminder), 4);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(rig.loaded(forms::Reminder))->role(), QAccessible::AlertMessage);
    EXPECT_EQ(name(rig.at(reminder::Plan)), u"日程：体检"_s);
}

TEST_F(ToldProgram, TheBoxOverACellIsCalledAfterSideAndColumn) {
    rig.signIn();
    struct Place {
        Name<Label> page;
        Name<MSFlexGrid> grid;
        Name<TextBox> box;
        int col;
        QStringView called;
    };
    const Place places[] = {
        {pages::Expense, income::Grid, income::Box, 5, u"支出金额"},
        {pages::Income, income::Grid, income::Box, 2, u"收入时间"},
        {pages::Income, income::Grid, income::Box, 4, u"收入收款人"},
        {pages::Budget, budget::Grid, budget::Box, 3, u"预算金额"},
        {pages::Budget, budget::Grid, budget::Box, 4, u"预算备注"},
        {pages::Loans, loans::Grid, loans::Box, 3, u"借出记录借出金额"},
        {pages::Accounts, accounts::Grid, accounts::Box, 9, u"账户余额"},
        {pages::Users, users::Grid, users::Box, 2, u"用户密码"},
        {pages::Diary, diary_page::Grid, diary_page::Box, 2, u"日记标题"},
    };
    for (const Place& place : places) {
        press(rig.at(place.page));
        rig.clickCell(rig.at(place.grid), 1, place.col);
        EXPECT_EQ(name(rig.at(place.box)), place.called.toString());
        rig.press(rig.at(place.box), Qt::Key_Escape);
    }
    press(rig.at(pages::Loans));
    press(rig.at(loans::Borrowed));
    rig.clickCell(rig.at(loans::Grid), 1, 3);
    EXPECT_EQ(name(rig.at(loans::Box)), u"借入记录借入金额"_s);
}

TEST_F(ToldProgram, AReportIsATableCalledAfterWhatItReports) {
    rig.signIn();
    press(rig.at(pages::Expense));
    EXPECT_EQ(name(rig.at(income::Grid)), u"支出记录"_s);
    press(rig.at(income::ByPerson));
    QAccessibleInterface& report = *QAccessible::queryAccessibleInterface(&rig.at(income::Grid));
    EXPECT_EQ(report.text(QAccessible::Name), u"支出本月人员收支统计"_s);
    EXPECT_EQ(report.text(QAccessible::Description), rig.at(income::Grid).ground.shown().replace(u'\n', u'，'));
    EXPECT_TRUE(holdsChinese(report.text(QAccessible::Description)));
    EXPECT_EQ(report.tableInterface()->columnDescription(2), u"本月消费总额"_s);
    EXPECT_TRUE(report.state().disabled);
    press(rig.at(income::Records));
    EXPECT_EQ(name(rig.at(income::Grid)), u"支出记录"_s);
}

TEST_F(ToldProgram, ThePageThatComesIntoViewAndWhatTheProgramHasToSayAreTold) {
    rig.signIn();
    const Listener listener;
    press(rig.at(pages::Budget));
    EXPECT_EQ(listener.all(QAccessible::Selection), QStringList{u"预算"_s});
    shared().note(u"磁盘已满"_s);
    shared().note(u"磁盘还是满的"_s);
    EXPECT_TRUE(listener.heard(QAccessible::ObjectShow, u"磁盘还是满的（共 2 条）"_s));
}

TEST_F(ToldProgram, ADayIsToldWithItsMonthAndTakenByAPress) {
    rig.clock->time = QDateTime(QDate(2024, 5, 3), QTime(20, 36));
    rig.signIn();
    press(rig.at(pages::Expense));
    rig.clickCell(rig.at(income::Grid), 1, 2);
    Label& day = rig.at(date_picker::Day[6]);
    QAccessibleInterface& told = *QAccessible::queryAccessibleInterface(&day);
    EXPECT_EQ(told.text(QAccessible::Name), u"2024年5月4日，星期六"_s);
    EXPECT_FALSE(told.state().selected);
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&rig.at(date_picker::Day[5]))->state().selected);
    EXPECT_EQ(name(rig.at(date_picker::Day[0])), u"上个月28日"_s);
    told.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(rig.at(income::Box).Text(), u"2024-5-4"_s);
}

TEST_F(ToldProgram, TheCalculatorsDisplayIsWhereItsKeyboardIs) {
    rig.signIn();
    press(rig.at(pages::Expense));
    const Listener listener;
    rig.clickCell(rig.at(income::Grid), 1, 5);
    rig.settle();
    EXPECT_TRUE(listener.heard(QAccessible::Focus, u"计算器显示"_s));
    rig.type(*rig.loaded(forms::Calculator), u"12+"_s);
    QAccessibleInterface& display = *QAccessible::queryAccessibleInterface(&rig.at(calculator::Display));
    EXPECT_TRUE(display.state().focused);
    EXPECT_EQ(display.text(QAccessible::Value), rig.at(calculator::Display).Text());
}

} // namespace
} // namespace qinghe::testing
