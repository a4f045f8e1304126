#include "core_fixture.h"

namespace qinghe::testing {
namespace {

class WorkbenchTest : public CoreTest {};

Shared benchIn(const QString& folder) {
    Services services;
    services.appPath = folder;
    return Shared(std::move(services));
}

TEST_F(WorkbenchTest, FilesLieBesideTheProgramAlsoAtTheRootOfADrive) {
    EXPECT_EQ(benchIn(u"/home/我/账本"_s).beside(u"data.dll"_s), u"/home/我/账本/data.dll"_s);
    EXPECT_EQ(benchIn(u"/"_s).beside(u"data.dll"_s), u"/data.dll"_s);
}

TEST_F(WorkbenchTest, TheConnectionTextEndsWithABlankOrNot) {
    const QString with = benchIn(u"/a"_s).connection(), without = benchIn(u"/a"_s).connection(false);
    EXPECT_EQ(with, without + u' ');
    EXPECT_TRUE(without.startsWith(u"provider = microsoft.jet.oledb.4.0;data source="_s)) << without.toStdString();
    EXPECT_TRUE(without.endsWith(u"data.dll"_s)) << without.toStdString();
}

TEST_F(WorkbenchTest, UnloadingToolsThatAreNotOpenIsHarmless) {
    rig.signIn();
    rig.program->shared().unloadTools();
    rig.program->shared().unloadPickers();
    EXPECT_FALSE(toolsOpen());
    EXPECT_TRUE(rig.messages->errors.empty());
}

TEST_F(WorkbenchTest, AToolIsShownWhereItWasAskedForAndKeptOnTheScreen) {
    rig.signIn();
    handlers::enter([this] { rig.program->shared().openDatePicker({}, 1500, 1200); });
    const Form& picker = *rig.loaded(forms::DatePicker);
    EXPECT_TRUE(picker.isVisible());
    EXPECT_EQ(picker.Left(), 1500);
    EXPECT_EQ(picker.Top(), 1200);
    handlers::enter([this] { rig.program->shared().openDatePicker({}, 900000, 900000); });
    EXPECT_TRUE(QGuiApplication::primaryScreen()->availableGeometry().contains(picker.frameGeometry()));
}

TEST_F(WorkbenchTest, TheTwoToolsStayAboveTheMainWindow) {
    rig.signIn();
    openTools();
    EXPECT_EQ(rig.loaded(forms::DatePicker)->parentWidget(), &main());
    EXPECT_EQ(rig.loaded(forms::Calculator)->parentWidget(), &main());
}

} // namespace
} // namespace qinghe::testing
