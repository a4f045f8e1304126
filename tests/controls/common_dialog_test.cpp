#include "controls/common_dialog.h"
#include "support/doubles.h"
#include "support/guard_fixture.h"

namespace qinghe::testing {
namespace {

class CommonDialogTest : public GuardTest {
protected:
    AnsweringChooser chooser;
    QObject owner;
    CommonDialog dialog{chooser, u"Com1"_s, &owner};
};

TEST_F(CommonDialogTest, ItIsFoundByItsNameAndHasNoFileAtFirst) {
    EXPECT_EQ(owner.findChild<CommonDialog*>(u"Com1"_s), &dialog);
    EXPECT_EQ(dialog.FileName(), QString());
}

TEST_F(CommonDialogTest, ItKeepsWhatIsChosen) {
    dialog.setFilter(u"*.dat|*.dat"_s);
    chooser.names = {u"/一.dat"_s, u"/二.dat"_s};
    dialog.showOpen();
    EXPECT_EQ(dialog.FileName(), u"/一.dat");
    dialog.showOpen();
    EXPECT_EQ(dialog.property("FileName").toString(), u"/二.dat");
    using Asked = AnsweringChooser::Asked;
    EXPECT_EQ(chooser.asked, (std::vector{Asked{u"*.dat|*.dat"_s, {}}, Asked{u"*.dat|*.dat"_s, u"/一.dat"_s}}));
}

TEST_F(CommonDialogTest, CancelLeavesTheNameAsItWas) {
    dialog.showOpen();
    EXPECT_EQ(dialog.FileName(), QString());
    chooser.names = {u"/一.dat"_s, std::nullopt};
    dialog.showOpen();
    dialog.showOpen();
    EXPECT_EQ(dialog.FileName(), u"/一.dat");
}

TEST_F(CommonDialogTest, ASuggestionStandsInItUntilANameIsChosenAndIsNoneByItself) {
    dialog.setSuggestion(u"备份.dat"_s);
    chooser.names = {std::nullopt, u"/一.dat"_s};
    dialog.showOpen();
    EXPECT_EQ(dialog.FileName(), QString());
    dialog.showOpen();
    dialog.showOpen();
    using Asked = AnsweringChooser::Asked;
    EXPECT_EQ(chooser.asked,
              (std::vector{Asked{{}, u"备份.dat"_s}, Asked{{}, u"备份.dat"_s}, Asked{{}, u"/一.dat"_s}}));
}

TEST_F(CommonDialogTest, TheUnitOfWorkEndsBeforeItIsShown) {
    chooser.whileShown = [this] { log << u"shown"_s; };
    dialog.showOpen();
    EXPECT_EQ(log, (QStringList{u"commit"_s, u"shown"_s}));
}

} // namespace
} // namespace qinghe::testing
