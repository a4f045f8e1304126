#include "core_fixture.h"
#include "store/header_toggle.h"

namespace qinghe::testing {
namespace {

class Start : public CoreTest {
protected:
    /// The line of the title band that stands beside the clock.
    Label& note() {
        QList<Label*> labels = rig.at(title::Band).findChildren<Label*>(QString());
        labels.removeIf([](const Label* label) { return !label->objectName().isEmpty(); });
        EXPECT_EQ(labels.size(), 1);
        return *labels.front();
    }

    const QString secondCopy = u"程序已经运行，程序可能已经最小化到左下角或系统托盘！"_s;
};

TEST_F(Start, ABookThatNobodyHasWrittenInSaysWhereItLiesAndHowToBegin) {
    rig.signIn();
    EXPECT_TRUE(note().Visible());
    EXPECT_EQ(note().Caption(), u"新账本在程序的文件夹：先点“支出”写第一行"_s);
    EXPECT_LE(note().fontMetrics().horizontalAdvance(note().Caption()), note().width());
    EXPECT_TRUE(note().toolTip().contains(rig.folder())) << note().toolTip().toStdString();
}

TEST(StartInTheHome, ANewBookSaysSo) {
    ProgramRig rig(u"青禾家庭记账本"_s);
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(QFileInfo(rig.folder()).path()));
    rig.signIn();
    qputenv("HOME", home);
    const QList<Label*> labels = rig.at(title::Band).findChildren<Label*>(QString());
    const auto said = std::ranges::find(labels, u"新账本在“青禾家庭记账本”：先点“支出”写第一行"_s, &Label::Caption);
    ASSERT_NE(said, labels.end());
    EXPECT_LE((*said)->fontMetrics().horizontalAdvance((*said)->Caption()), (*said)->width());
}

TEST_F(Start, WhatThereIsToNoteStandsInTheFirstStepsPlace) {
    rig.signIn();
    shared().note(u"今天没有做成安全副本。"_s);
    EXPECT_EQ(note().Caption(), u"今天没有做成安全副本。"_s);
}

TEST_F(Start, ABookWithARecordOrADiaryOrThatHasGrownSaysNothingOfFirstSteps) {
    for (const QString& row : {u"into srb values('1','2024-05-01','工资','王青',500,'工行','',1)"_s,
                               u"into rjb values('2024-05-01','五月')"_s}) {
        rig.sql(u"insert "_s + row);
        rig.signIn();
        EXPECT_FALSE(note().Visible()) << row.toStdString();
        rig.stop();
        rig.sql(u"delete from "_s + row.section(u' ', 1, 1));
    }
    rig.signIn();
    EXPECT_TRUE(note().Visible());
    rig.stop();
    rig.sql(u"insert into 软件皮肤 values('很大',1,zeroblob(2200000))"_s);
    rig.signIn();
    EXPECT_FALSE(note().Visible()) << "and nothing is read to find that out";
}

TEST_F(Start, ASecondCopyAsksForNameAndPasswordFirstThenSaysSoAndEnds) {
    rig.lock->free = false;
    rig.start();
    EXPECT_TRUE(rig.messages->shown.empty());
    int callsDuringMessage = -1;
    rig.messages->whileShown = [&](const ShownMessage&) { callsDuringMessage = rig.lock->calls; };
    rig.click(signInButton());
    EXPECT_EQ(rig.messages->shown, (std::vector<ShownMessage>{{secondCopy, 0, QString()}}));
    EXPECT_EQ(callsDuringMessage, 0);
    EXPECT_EQ(rig.lock->calls, 1); // the first copy comes forward
    expectEndedWell();
    EXPECT_FALSE(folder().contains(u"mydiary"_s));
    EXPECT_FALSE(folder().contains(u"pf.jpg"_s));
    EXPECT_FALSE(main().isVisible());
}

TEST_F(Start, ACopyWhoseForerunnerHasEndedMeanwhileIsTheFirst) {
    rig.lock->free = false;
    rig.start();
    rig.lock->free = true;
    rig.click(signInButton());
    EXPECT_TRUE(main().isVisible());
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_F(Start, TheCallOfASecondCopyBringsForwardWhatIsThere) {
    rig.start();
    Form& signIn = *rig.loaded(forms::SignIn);
    signIn.setWindowState(1);
    rig.lock->call();
    EXPECT_EQ(signIn.WindowState(), 0);
    EXPECT_TRUE(signIn.isActiveWindow());
    rig.click(signInButton());
    click(title::Minimise);
    rig.lock->call();
    EXPECT_EQ(main().WindowState(), 0);
    EXPECT_TRUE(main().isActiveWindow());
}

TEST_F(Start, TheDiaryFolderIsMadeWhenItIsMissing) {
    rig.signIn();
    EXPECT_TRUE(QFileInfo(rig.file(u"mydiary"_s)).isDir());
}

TEST_F(Start, AnExistingDiaryFolderIsNotTouched) {
    QDir(rig.folder()).mkdir(u"mydiary"_s);
    write(u"mydiary/旅行.dll"_s, "text");
    const QDateTime before = QFileInfo(rig.file(u"mydiary"_s)).lastModified();
    rig.signIn();
    EXPECT_EQ(bytes(u"mydiary/旅行.dll"_s), "text");
    EXPECT_EQ(QFileInfo(rig.file(u"mydiary"_s)).lastModified(), before);
}

TEST_F(Start, TheMainWindowHealsTheHeaderOnceMore) {
    rig.start();
    rig.program->shared().store.close();
    spoilHeader(rig.dataFile());
    handlers::enter([this] { rig.program->shared().forms.get(names::Main); });
    EXPECT_EQ(rig.headerBytes(), Healed);
    EXPECT_TRUE(rig.messages->errors.empty());
}

TEST_F(Start, TheHeaderIsHealedWhileNoWorkIsOpenInTheFile) {
    rig.sql(u"update systuopanb set 最小化到托盘=1"_s); // the icon comes right behind the healing, in the same handler
    rig.sql(u"insert into yhb values('李四','abc',2)"_s);
    rig.start();
    QStringList pair, files;
    rig.tray->whenAdded = [&] {
        pair = rig.sql(u"select 用户名, 密码 from 登陆用户记录表"_s);
        files = folder();
    };
    trySignIn(u"李四"_s, u"abc"_s);
    EXPECT_EQ(pair, QStringList{u"李四|abc"_s});
    EXPECT_FALSE(files.isEmpty() || files.contains(u"data.dll-journal"_s)) << files.join(u' ').toStdString();
}

TEST_F(Start, TheDesktopStandsInFront) {
    rig.signIn();
    EXPECT_EQ(main().navigation().currentPage, 24);
    EXPECT_EQ(label(pages::Desktop).ForeColor(), Red);
    const Frame& desktop = rig.at(desktop::Page);
    EXPECT_TRUE(desktop.isVisible());
    EXPECT_EQ(desktop.Left(), 200);
    EXPECT_EQ(desktop.Top(), 1680);
    EXPECT_EQ(desktop.Width(), 11535);
    EXPECT_EQ(desktop.Height(), 6135);
    auto& band = rig.at(title::Band);
    EXPECT_EQ(band.Left(), 120);
    EXPECT_EQ(band.Width(), 11655);
}

TEST_F(Start, AllOtherFramesAreHidden) {
    rig.signIn();
    for (const QString& name : QStringList{users::Page, budget::Page, accounts::Page, diary_page::Page, charts::Page,
                                           settings::Page, loans::Page, categories::Page, income::Page, schedule::Page})
        EXPECT_FALSE(rig.onMain<Frame>(name).Visible()) << name.toStdString();
}

TEST_F(Start, TheDataControlsAndTheSpareTickAreOutOfSight) {
    rig.signIn();
    for (const Adodc* control : {main().Adodc1, main().Adodc2, main().Adodc3})
        EXPECT_FALSE(control->isVisible());
    EXPECT_FALSE(rig.at(settings::AtSystemStart).Visible());
}

TEST_F(Start, DateAndTimeStandInTheBandAndTheTimeGoesOn) {
    rig.signIn();
    EXPECT_EQ(caption(title::Date), u"系统时间：2024-6-18"_s);
    EXPECT_EQ(caption(title::Time), u"20:36:08"_s);
    auto& clock = rig.at(title::Clock);
    EXPECT_TRUE(clock.Enabled());
    EXPECT_EQ(clock.interval(), 1000);
    rig.clock->time = QDateTime(QDate(2024, 6, 19), QTime(7, 5, 9));
    clock.setInterval(1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return caption(title::Time) == u"7:05:09"_s; }));
    EXPECT_EQ(caption(title::Date), u"系统时间：2024-6-18"_s);
}

TEST_F(Start, TheCaptionRowBearsTheProgramsName) {
    rig.signIn();
    EXPECT_EQ(caption(title::Product), u"青禾家庭记账本"_s);
    EXPECT_EQ(label(title::Product).Left(), 960);
    EXPECT_EQ(label(title::Product).Top(), 240);
    EXPECT_EQ(label(title::Product).Width(), 2175);
    EXPECT_EQ(label(title::Product).Height(), 375);
}

TEST_F(Start, TheSharedNumbersBeginAtZero) {
    rig.signIn();
    EXPECT_EQ(rig.program->shared().dateTarget, 0);
    EXPECT_EQ(rig.program->shared().calcTarget, 0);
    EXPECT_EQ(rig.program->shared().emptyRowFlag, 0);
}

class ReminderSetting : public CoreTest {
protected:
    /// Whether the program takes reminders as wanted with these rows in the settings table.
    bool wanted(const QString& rows) {
        rig.stop();
        rig.sql(u"delete from txb"_s);
        if (!rows.isEmpty())
            rig.sql(u"insert into txb values "_s + rows);
        rig.signIn();
        auto& comparer = rig.at(schedule::Watch);
        const bool first = rig.at(schedule::Remind).Value();
        EXPECT_EQ(rig.at(settings::Remind).Value(), first);
        EXPECT_EQ(comparer.Enabled(), first);
        EXPECT_EQ(comparer.interval(), 1000);
        return first;
    }
};

TEST_F(ReminderSetting, IsTakenFromExactlyOneRowThatIsTrue) {
    EXPECT_TRUE(wanted(u"(1)"_s));
    EXPECT_FALSE(wanted(u"(0)"_s));
    EXPECT_FALSE(wanted({}));
    EXPECT_FALSE(wanted(u"(1),(1)"_s));
}

} // namespace
} // namespace qinghe::testing
