#include "backup_rig.h"

// The window of backup and restore: how it opens, what it says, how it asks.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class BackupWindowTest : public BackupTest {
protected:
    QStringList words() {
        return {window()->Caption(), inWindow<Frame>(backup::Ground).Caption(),
                inWindow<Label>(backup::Words).Caption(), start().text()};
    }
};

const QStringList BackupTexts{u"数据备份"_s, u"数据备份"_s,
                              u"备份说明：文件备份是将现有记录数据额外存储一分，当数据需要还原时，可以还原数据。"_s,
                              u"开始备份"_s};
const QStringList RestoreTexts{u"数据还原"_s, u"数据还原"_s,
                               u"数据还原说明：数据还原后，备份的数据将覆盖当前数据，系统将显示备份的数据。"_s,
                               u"开始还原"_s};

const QString SuggestedName = u"青禾家庭记账本2024-06-18.dat"_s;

TEST_F(BackupWindowTest, TheOptionsStandAmongTheSettingsOfFiles) {
    const Frame& files = rig.at(settings::Files);
    EXPECT_EQ(files.Caption(), u"文件设置");
    EXPECT_EQ(backup().text(), u"系统数据备份");
    EXPECT_EQ(restore().text(), u"系统数据还原");
    EXPECT_EQ(backup().parentWidget(), &files);
    EXPECT_TRUE(backup().isVisible() && restore().isVisible());
    EXPECT_FALSE(backup().Value() || restore().Value());
    EXPECT_EQ(window(), nullptr);
}

TEST_F(BackupWindowTest, EachOptionOpensTheWindowWithItsOwnTexts) {
    openFor(backup());
    EXPECT_TRUE(window()->isVisible());
    EXPECT_EQ(words(), BackupTexts);
    EXPECT_FALSE(inWindow<ProgressBar>(backup::Progress).Visible());
    rig.mainWindow().shared().forms.unload(forms::Backup);
    openFor(restore());
    EXPECT_TRUE(window()->isVisible());
    EXPECT_EQ(words(), RestoreTexts);
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_F(BackupWindowTest, TheOtherOptionChangesTheTextsOfTheOpenWindow) {
    openFor(backup());
    Form* first = window();
    openFor(restore());
    EXPECT_EQ(window(), first);
    EXPECT_EQ(words(), RestoreTexts);
    openFor(backup());
    EXPECT_EQ(words(), BackupTexts);
}

TEST_F(BackupWindowTest, ItSaysThatDiaryTextsAreNotInABackupAndWhereTheyLie) {
    for (OptionButton* option : {&backup(), &restore()}) {
        openFor(*option);
        const auto labels = window()->findChildren<Label*>();
        EXPECT_EQ(std::ranges::count_if(labels,
                                        [this](const Label* label) {
                                            return label->Caption().contains(u"日记的正文不在备份里"_s) &&
                                                   label->Caption().contains(rig.file(u"mydiary"_s));
                                        }),
                  1);
    }
}

TEST_F(BackupWindowTest, ItBlocksNothing) {
    openFor(backup());
    rig.click(rig.at(pages::Budget));
    EXPECT_TRUE(rig.at(budget::Page).isVisible());
    EXPECT_TRUE(window()->isVisible());
}

TEST_F(BackupWindowTest, ClosedItClearsBothOptionsAndOpensNothingAnew) {
    for (OptionButton* option : {&backup(), &restore()}) {
        openFor(*option);
        window()->close();
        rig.settle();
        EXPECT_EQ(window(), nullptr);
        EXPECT_FALSE(backup().Value() || restore().Value());
    }
}

TEST_F(BackupWindowTest, TheSameOptionOpensItAgain) {
    for (int time = 0; time < 3; ++time) {
        openFor(backup());
        ASSERT_TRUE(window()) << time;
        window()->close();
        rig.settle();
    }
    openFor(backup());
    openFor(restore());
    EXPECT_FALSE(backup().Value());
}

TEST_F(BackupWindowTest, CancelAtTheFirstMessageShowsNoDialog) {
    openFor(backup());
    rig.messages->answers = {Answer::Cancel};
    startWith(rig.file(u"b.dat"_s));
    EXPECT_EQ(rig.messages->shown, std::vector{AskedWhereTo});
    EXPECT_TRUE(rig.chooser->asked.empty());
    EXPECT_EQ(bytes(u"b.dat"_s), "(missing)");

    openFor(restore());
    rig.messages->answers = {Answer::Cancel};
    rig.click(start());
    EXPECT_EQ(rig.lastMessage(), AskedWhereFrom);
    EXPECT_TRUE(rig.chooser->asked.empty());
}

TEST_F(BackupWindowTest, TheDialogIsAskedForDataFilesAndSuggestsADatedNameForABackup) {
    openFor(backup());
    rig.click(start());
    openFor(restore());
    rig.click(start());
    using Asked = AnsweringChooser::Asked;
    EXPECT_EQ(rig.chooser->asked, (std::vector{Asked{u"*.dat|*.dat"_s, SuggestedName}, Asked{u"*.dat|*.dat"_s, {}}}));
    EXPECT_EQ(rig.messages->shown, (std::vector{AskedWhereTo, AskedWhereFrom})); // Cancel gave no name
}

TEST_F(BackupWindowTest, CancelInTheDialogWithoutAnEarlierNameDoesNothing) {
    const QByteArray before = bytes(u"data.dll"_s);
    openFor(restore());
    rig.click(start());
    EXPECT_EQ(rig.messages->shown, std::vector{AskedWhereFrom});
    EXPECT_EQ(bytes(u"data.dll"_s), before);
    EXPECT_FALSE(rig.ended());
}

TEST_F(BackupWindowTest, CancelInTheDialogUsesTheNameOfTheLastRunAndTheDialogShowsIt) {
    backUpTo(u"b.dat"_s);
    ASSERT_TRUE(QFile::remove(rig.file(u"b.dat"_s)));
    rig.click(start());
    EXPECT_EQ(rig.chooser->asked.back().name, rig.file(u"b.dat"_s));
    EXPECT_EQ(rig.lastMessage(), BackedUp);
    EXPECT_EQ(bytes(u"b.dat"_s).size(), bytes(u"data.dll"_s).size() + 1);
    EXPECT_EQ(inWindow<CommonDialog>(backup::Chooser).FileName(), rig.file(u"b.dat"_s));
}

TEST_F(BackupWindowTest, TheNameOfABackupServesARestoreInTheSameWindow) {
    backUpTo(u"b.dat"_s);
    openFor(restore());
    rig.click(start());
    EXPECT_EQ(rig.lastMessage(), Restored);
}

TEST_F(BackupWindowTest, ANameIsForgottenWithTheWindow) {
    backUpTo(u"b.dat"_s);
    window()->close();
    rig.settle();
    openFor(backup());
    rig.click(start());
    EXPECT_EQ(rig.chooser->asked.back().name, SuggestedName);
    EXPECT_EQ(rig.lastMessage(), AskedWhereTo);
}

TEST_F(BackupWindowTest, TheNameIsTakenAsItIsGiven) {
    backUpTo(u"我的 备份"_s);
    EXPECT_TRUE(QFile::exists(rig.file(u"我的 备份"_s)));
    EXPECT_FALSE(QFile::exists(rig.file(u"我的 备份.dat"_s)));
}

TEST_F(BackupWindowTest, ARunAsksThenCopiesThenTellsOfIt) {
    backUpTo(u"b.dat"_s);
    restoreFrom(u"b.dat"_s);
    EXPECT_EQ(rig.messages->shown, (std::vector{AskedWhereTo, BackedUp, AskedWhereFrom, Restored}));
}

TEST_F(BackupWindowTest, TheBarIsGoneAndEmptyWhenTheEndIsTold) {
    auto& bar = [this]() -> ProgressBar& {
        openFor(backup());
        return inWindow<ProgressBar>(backup::Progress);
    }();
    rig.messages->whileShown = [&](const ShownMessage&) {
        EXPECT_FALSE(bar.Visible());
        EXPECT_LE(bar.value(), 0);
    };
    startWith(rig.file(u"b.dat"_s));
    EXPECT_EQ(rig.lastMessage(), BackedUp);
    EXPECT_EQ(bar.maximum(), bytes(u"data.dll"_s).size() + 5);
}

TEST_F(BackupWindowTest, TheBarIsPaintedDuringTheCopyWithoutAnyEventsBeingProcessed) {
    class Watcher : public QObject {
    public:
        bool eventFilter(QObject* bar, QEvent* event) override {
            if (event->type() == QEvent::Paint)
                values.push_back(static_cast<QProgressBar*>(bar)->value());
            return false;
        }
        std::vector<int> values;
    };
    write(u"large.dat"_s, QByteArray(64 << 20, 'x'));
    openFor(restore());
    Watcher watcher;
    inWindow<ProgressBar>(backup::Progress).installEventFilter(&watcher);
    startWith(rig.file(u"large.dat"_s));
    EXPECT_EQ(rig.lastMessage(), Restored);
    ASSERT_GE(watcher.values.size(), 2u);
    EXPECT_GT(watcher.values.back(), watcher.values.front());
}

TEST_F(BackupWindowTest, TicksWaitWhileTheDialogIsOpen) {
    openFor(backup());
    int ticksBefore = -1;
    rig.chooser->whileShown = [&] { ticksBefore = handlers::depth(); };
    rig.click(start());
    EXPECT_EQ(ticksBefore, 1);
}

TEST_F(BackupWindowTest, ItStandsInTheMiddleOfTheMainWindow) {
    openFor(backup());
    const MainWindow& main = rig.mainWindow();
    EXPECT_DOUBLE_EQ(window()->Left(), main.Left() + (main.Width() - 5400) / 2);
    EXPECT_DOUBLE_EQ(window()->Top(), main.Top() + (main.Height() - 3690) / 2);
    EXPECT_EQ(window()->parentWidget(), &main);
}

TEST_F(BackupWindowTest, TheButtonIsGreyUnderThePointerAndWhiteBesideIt) {
    openFor(backup());
    rig.hover(start());
    EXPECT_EQ(start().BackColor(), 0xE0E0E0u);
    rig.hover(*window());
    EXPECT_EQ(start().BackColor(), 0xFFFFFFu);
}

} // namespace
} // namespace qinghe::testing
