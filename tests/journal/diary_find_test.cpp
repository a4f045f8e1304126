#include "journal/diary_rig.h"
#include "support/find_bar.h"

#include <QScrollBar>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class DiaryFinding : public DiaryTest {};

/// Notes what of a widget is painted anew.
class PaintedRoom : public QObject {
public:
    explicit PaintedRoom(QWidget& watched) { watched.installEventFilter(this); }

    const QRegion& painted() const { return m_painted; }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            m_painted += static_cast<QPaintEvent*>(event)->region();
        return false;
    }

private:
    QRegion m_painted;
};

TEST_F(DiaryFinding, EntriesAreListedInTheOrderInWhichTheyWereSaved) {
    saveEntry(u"2024-6-3"_s, u"后来"_s);
    saveEntry(u"2024-5-3"_s, u"先前"_s);
    find();
    EXPECT_EQ(ms8().Rows(), 3);
    EXPECT_EQ(ProgramRig::rowText(ms8(), 1), u"2024-6-3|后来"_s);
    EXPECT_EQ(ProgramRig::rowText(ms8(), 2), u"2024-5-3|先前"_s);
    for (CommandButton* button : {&add(), &remove(), &save()})
        EXPECT_FALSE(button->isEnabled());
    write();
    for (CommandButton* button : {&add(), &remove(), &save()})
        EXPECT_TRUE(button->isEnabled());
    EXPECT_EQ(ms8().Rows(), 2);
    EXPECT_EQ(ProgramRig::rowText(ms8(), 1), u"|"_s);
}

TEST_F(DiaryFinding, ADiaryWithoutEntriesSaysSoOnItsGround) {
    find();
    EXPECT_TRUE(ms8().ground.shown().contains(u"点“写日记”"_s));
    write();
    EXPECT_EQ(ms8().ground.shown(), QString());
    saveEntry(u"2024-6-3"_s, u"插秧"_s);
    find();
    EXPECT_EQ(ms8().ground.shown(), QString());
}

TEST_F(DiaryFinding, ThreeLinesAreShownAsOneRunOfText) {
    saveEntry(u"2024-5-3"_s, u"插秧"_s, {u"一"_s, u"二"_s, u"三"_s});
    find();
    EXPECT_EQ(shown(1), u"一二三"_s);
}

TEST_F(DiaryFinding, WhatWasWrittenReadsBackRareCharactersAndEmojiIncluded) {
    const QString text = u"饭🍚 㐀 𠮷 naïve é €\u00A0."_s;
    tx8().setBoxText(text);
    EXPECT_EQ(tx8().Text(), text);
    fill(u"2024-5-3"_s, u"各种字"_s);
    tx8().setBoxText(text);
    rig.click(save());
    find();
    EXPECT_EQ(shown(1), text);
}

TEST_F(DiaryFinding, AClickOnTheDateShowsNothing) {
    saveEntry(u"2024-5-3"_s, u"a"_s, {u"text"_s});
    find();
    shown(1);
    rig.clickCell(ms8(), 1, 1);
    EXPECT_EQ(tx8().Text(), QString());
    EXPECT_FALSE(rig.loaded(forms::DatePicker));
    EXPECT_FALSE(tx9().Visible());
    EXPECT_FALSE(rig.ended());
}

TEST_F(DiaryFinding, AnEmptyDiaryKeepsTheRowAsItStoodAndReadsNoFile) {
    fill(u"2024-5-3"_s, u"not saved"_s);
    find();
    EXPECT_EQ(ProgramRig::rowText(ms8(), 1), u"2024-5-3|not saved"_s);
    EXPECT_EQ(shown(1), QString());
    EXPECT_FALSE(rig.ended());
}

TEST_F(DiaryFinding, AnEmptyTitleBlanksTheRowWhereTheLoanGridStands) {
    rig.sql(u"insert into rjb values('2024-05-01','a'),('2024-05-02','b'),('2024-05-03',''),('2024-05-04',null)"_s);
    find();
    EXPECT_EQ(rig.at(loans::Grid).Row(), 1);
    EXPECT_EQ(ProgramRig::rowText(ms8(), 1), u"2024-5-1|"_s);
    EXPECT_EQ(ProgramRig::rowText(ms8(), 2), u"2024-5-2|b"_s);
    EXPECT_EQ(ProgramRig::rowText(ms8(), 4), u"2024-5-4|"_s);
    EXPECT_EQ(shown(4), QString());
    EXPECT_FALSE(rig.ended());
}

TEST_F(DiaryFinding, AnEmptyTitleBlanksWhateverRowTheLoanGridHas) {
    rig.sql(u"insert into rjb values('2024-05-01','a'),('2024-05-02','b'),('2024-05-03','')"_s);
    auto& ms1 = rig.at(loans::Grid);
    ms1.setRows(3);
    ms1.setRow(2);
    find();
    EXPECT_EQ(ProgramRig::rowText(ms8(), 1), u"2024-5-1|a"_s);
    EXPECT_EQ(ProgramRig::rowText(ms8(), 2), u"2024-5-2|"_s);
}

TEST_F(DiaryFinding, AClickInTheTextPutsTheHiddenBoxIntoTheList) {
    saveEntry(u"2024-5-3"_s, u"a"_s, {u"text"_s});
    saveEntry(u"2024-5-4"_s, u"b"_s);
    find();
    shown(1);
    rig.click(*tx8().viewport());
    EXPECT_EQ(ProgramRig::rowText(ms8(), 1), u"2024-5-3|b"_s); // the box still holds the title typed last
    EXPECT_EQ(tx8().Text(), u"text"_s);
    EXPECT_EQ(rows(), (QStringList{u"2024-05-03|a"_s, u"2024-05-04|b"_s}));
}

TEST_F(DiaryFinding, EntriesAreThereAfterARestart) {
    saveEntry(u"2024-5-3"_s, u"插秧"_s, {u"水很凉"_s});
    rig.stop();
    rig.signIn();
    open();
    find();
    EXPECT_EQ(ProgramRig::rowText(ms8(), 1), u"2024-5-3|插秧"_s);
    EXPECT_EQ(shown(1), u"水很凉"_s);
}

TEST_F(DiaryFinding, ComingBackToThePageIsWriteModeAgain) {
    saveEntry(u"2024-5-3"_s, u"a"_s, {u"text"_s});
    find();
    shown(1);
    rig.click(rig.at(pages::Budget));
    open();
    EXPECT_TRUE(rig.at(diary_page::Write).Value());
    EXPECT_EQ(tx8().Text(), QString());
    EXPECT_TRUE(save().isEnabled());
}

TEST_F(DiaryFinding, AnEntryIsShownAlsoWhenTheFileWasClosedOrTheControlUsedMeanwhile) {
    saveEntry(u"2024-5-3"_s, u"插秧"_s, {u"一"_s});
    find();
    handlers::enter([this] {
        rig.mainWindow().Adodc1->open(u"srb"_s); // empty, as what a tick asks for may be
        rig.program->shared().store.close();
    });
    EXPECT_EQ(shown(1), u"一"_s);
    EXPECT_TRUE(rig.messages->errors.empty());
}

TEST_F(DiaryFinding, AListOfManyEntriesNeedsNoBarAcross) {
    for (int day = 1; day <= 28; ++day)
        rig.sql(u"insert into rjb values('2024-05-%1','记%1')"_s.arg(day, 2, 10, QChar(u'0')));
    find();
    rig.settle();
    EXPECT_TRUE(ms8().verticalScrollBar()->isVisible());
    EXPECT_FALSE(ms8().horizontalScrollBar()->isVisible());
    ms8().ensureVisible(28, 2);
    EXPECT_TRUE(ms8().cellRoom().contains(ms8().cellRect(28, 2)));
}

TEST_F(DiaryFinding, TheBarFindsATitleInFindModeAloneAndGoesWithIt) {
    FindBarRig bar{rig};
    bar.open(); // an entry that is being written is no list
    EXPECT_FALSE(bar.isUp());
    for (const QString& title : {u"播种"_s, u"插秧"_s, u"收割"_s})
        saveEntry(u"2024-5-3"_s, title, {u"text"_s});
    find();
    const QString text = shown(1);
    bar.look(u"收割"_s);
    EXPECT_EQ(currentOf(ms8()), u"3,2");
    EXPECT_EQ(tx8().Text(), text);
    bar.look(u"2024-5"_s);
    EXPECT_EQ(bar.note(), u"1 / 3");
    write();
    rig.settle();
    EXPECT_FALSE(bar.isUp());
    EXPECT_EQ(ms8().height(), pixelEdge(4815));
}

TEST_F(DiaryFinding, TheEmptyPaperSaysHowATextIsReadInFindModeAlone) {
    EXPECT_NE(tx8().placeholderText(), u"点标题看正文");
    saveEntry(u"2024-5-3"_s, u"a"_s, {u"text"_s});
    rig.settle();
    PaintedRoom paper(*tx8().viewport());
    find();
    EXPECT_EQ(tx8().placeholderText(), u"点标题看正文");
    rig.settle();
    EXPECT_TRUE(paper.painted().contains(tx8().viewport()->rect())) << "the words before do not stay";
    write();
    EXPECT_NE(tx8().placeholderText(), u"点标题看正文");
}

} // namespace
} // namespace qinghe::testing
