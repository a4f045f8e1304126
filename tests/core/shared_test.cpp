#include "core_fixture.h"

namespace qinghe::testing {
namespace {

class SharedTest : public CoreTest {};

Shared sharedIn(const QString& folder) {
    Services services;
    services.appPath = folder;
    return Shared(std::move(services));
}

TEST_F(SharedTest, FilesLieBesideTheProgramAlsoAtTheRootOfADrive) {
    EXPECT_EQ(sharedIn(u"/home/我/账本"_s).beside(u"data.dll"_s), u"/home/我/账本/data.dll"_s);
    EXPECT_EQ(sharedIn(u"/"_s).beside(u"data.dll"_s), u"/data.dll"_s);
}

TEST_F(SharedTest, TheConnectionTextNamesTheDataFileAndEndsWithABlank) {
    const QString text = sharedIn(u"/a"_s).connection();
    EXPECT_TRUE(text.startsWith(u"provider = microsoft.jet.oledb.4.0;data source="_s)) << text.toStdString();
    EXPECT_TRUE(text.endsWith(u"data.dll "_s)) << text.toStdString();
}

TEST_F(SharedTest, UnloadingToolsThatAreNotOpenIsHarmless) {
    rig.signIn();
    rig.program->shared().unloadTools();
    rig.program->shared().unloadPickers();
    EXPECT_FALSE(toolsOpen());
    EXPECT_TRUE(rig.messages->errors.empty());
}

TEST_F(SharedTest, AToolIsShownWhereItWasAskedForAndKeptOnTheScreen) {
    rig.signIn();
    handlers::enter([this] { rig.program->shared().openDatePicker(DateField::None, {}, {1500, 1200}); });
    const Form& picker = *rig.loaded(forms::DatePicker);
    EXPECT_TRUE(picker.isVisible());
    EXPECT_EQ(picker.Left(), 1500);
    EXPECT_EQ(picker.Top(), 1200);
    handlers::enter([this] { rig.program->shared().openDatePicker(DateField::None, {}, {900000, 900000}); });
    EXPECT_TRUE(QGuiApplication::primaryScreen()->availableGeometry().contains(picker.frameGeometry()));
}

TEST_F(SharedTest, TheTwoToolsStayAboveTheMainWindow) {
    rig.signIn();
    openTools();
    EXPECT_EQ(rig.loaded(forms::DatePicker)->parentWidget(), &main());
    EXPECT_EQ(rig.loaded(forms::Calculator)->parentWidget(), &main());
}

} // namespace
} // namespace qinghe::testing
