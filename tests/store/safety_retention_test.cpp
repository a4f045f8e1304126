#include "store/safety_retention.h"

#include <gtest/gtest.h>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr qint64 Small = 1000, MiB = 1 << 20;
const QDate Today(2024, 11, 18);

QString daily(QDate day) {
    return day.toString(u"yyyy-MM-dd"_s) + u" 080000 每日.dat"_s;
}

class SafetyRetention : public ::testing::Test {
protected:
    void add(const QString& name, qint64 size = Small) { files.push_back({name, size}); }
    void addDays(QDate from, QDate to, qint64 size = Small) {
        for (QDate day = from; day <= to; day = day.addDays(1))
            add(daily(day), size);
    }
    QStringList left(QDate today = Today, const QString& spared = {}) const {
        const QStringList going = outdatedCopies(files, today, spared);
        QStringList names;
        for (const SafetyFile& file : files)
            if (!going.contains(file.name))
                names << file.name;
        return names;
    }
    std::vector<SafetyFile> files;
};

TEST_F(SafetyRetention, TheLastSevenDaysAndTheFirstOfEachOfTheLastTwelveMonthsStay) {
    addDays(QDate(2023, 6, 3), Today);
    QStringList expected;
    for (QDate month(2023, 12, 1); month <= Today; month = month.addMonths(1))
        expected << daily(month);
    for (QDate day = Today.addDays(-6); day <= Today; day = day.addDays(1))
        expected << daily(day);
    EXPECT_EQ(left(), expected);
}

TEST_F(SafetyRetention, TheFirstOfAMonthIsTheFirstThatThereIs) {
    for (const int day : {9, 17, 30})
        add(daily(QDate(2024, 8, day)));
    addDays(Today.addDays(-1), Today);
    EXPECT_EQ(left().first(), daily(QDate(2024, 8, 9)));
    EXPECT_EQ(left().size(), 3);
}

TEST_F(SafetyRetention, CopiesBeforeAnEventStayForAYear) {
    add(u"2023-11-17 101010 初始化以前.dat"_s);
    add(u"2023-11-18 101010 还原以前.dat"_s);
    add(u"2024-03-05 101010 保存出错以前.dat"_s);
    add(u"2024-03-05 101010 保存出错以前（2）.dat"_s);
    addDays(Today.addDays(-1), Today);
    EXPECT_EQ(outdatedCopies(files, Today), QStringList{files[0].name});
}

TEST_F(SafetyRetention, TheOldestGoUntilTheRestFitsIntoTheRoom) {
    add(u"2024-11-01 080000 每日.dat"_s, 90 * MiB);
    add(u"2024-11-16 080000 保存出错以前.dat"_s, 90 * MiB);
    add(u"2024-11-17 080000 每日.dat"_s, 60 * MiB);
    add(daily(Today), 50 * MiB);
    EXPECT_EQ(outdatedCopies(files, Today), QStringList{files[0].name});
}

TEST_F(SafetyRetention, ACopyOfADamagedBookNeverPushesOutAGoodOne) {
    add(daily(Today.addDays(-1)), 150 * MiB);
    add(u"2024-11-18 080000 还原以前 已损坏.dat"_s, 150 * MiB);
    EXPECT_EQ(left(), QStringList{daily(Today.addDays(-1))});
}

TEST_F(SafetyRetention, NorDoesABookThatLiesBesideItsJournal) {
    add(daily(Today.addDays(-1)), 150 * MiB);
    add(u"2024-11-18 080000 启动以前.dat"_s, 150 * MiB);
    add(u"2024-11-18 080000 启动以前.dat-journal"_s);
    EXPECT_TRUE(left().contains(daily(Today.addDays(-1))));
}

TEST_F(SafetyRetention, OfTheDamagedOnesTheNewestStays) {
    add(u"2024-11-17 080000 初始化以前 已损坏.dat"_s);
    add(u"2024-11-18 080000 还原以前 已损坏.dat"_s);
    EXPECT_EQ(left(), QStringList{files[1].name});
}

TEST_F(SafetyRetention, WhatLiesBesideACopyGoesWithIt) {
    add(u"2023-10-01 080000 启动以前.dat"_s);
    add(u"2023-10-01 080000 启动以前.dat-journal"_s);
    addDays(Today.addDays(-1), Today);
    EXPECT_EQ(outdatedCopies(files, Today), (QStringList{files[0].name, files[1].name}));
}

TEST_F(SafetyRetention, TheCopyThatIsBeingRestoredStaysWhateverItsAge) {
    add(u"2022-01-01 080000 还原以前.dat"_s, 100 * MiB);
    add(u"2024-11-17 080000 每日.dat"_s, 60 * MiB);
    add(u"2024-11-18 080000 还原以前.dat"_s, 100 * MiB);
    EXPECT_EQ(left(Today, files[0].name), (QStringList{files[0].name, files[2].name}));
}

TEST_F(SafetyRetention, AClockThatIsWrongForADayDoesNotClearTheFolder) {
    addDays(Today.addDays(-6), Today);
    EXPECT_EQ(left(QDate(1970, 1, 1)), left(Today));
    add(daily(QDate(2094, 1, 1)));
    EXPECT_EQ(left(QDate(2094, 1, 1)), (QStringList{daily(Today), daily(QDate(2094, 1, 1))}));
}

TEST_F(SafetyRetention, FilesWithOtherNamesStayAndDoNotCount) {
    add(u"我的备份.dat"_s, 500 * MiB);
    add(u"2020-01-01 我的备份.dat"_s, 500 * MiB);
    add(u".unfinished-12ab"_s, 500 * MiB);
    add(u"2020-13-01 080000 每日.dat"_s, 500 * MiB);
    add(u"2020-01-01"_s);
    add(daily(Today));
    EXPECT_EQ(outdatedCopies(files, Today), QStringList());
}

TEST_F(SafetyRetention, OnlyASoundCopyOfTheDaysBeginningIsTheDays) {
    add(u"2024-11-18 080000 还原以前.dat"_s);
    add(daily(Today.addDays(-1)));
    EXPECT_FALSE(hasDailyCopy(files, Today));
    add(daily(Today));
    EXPECT_TRUE(hasDailyCopy(files, Today));
}

} // namespace
} // namespace qinghe::testing
