#include "controls/controls.h"
#include "controls/form.h"
#include "look/colours.h"
#include "look/frame_painter.h"
#include "rendering.h"

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr int ControlsBegin = 16; ///< 240 twips

struct Frames : ::testing::Test {
    Frames() : window(u"Form2"_s, Form::Kind::Frameless, Ground::Main) { window.place(0, 0, 12000, 8100); }

    Form window;
};

TEST_F(Frames, TagsEndWhereControlsBegin) {
    for (const Role role : {Role::PageFrame, Role::InnerFrame}) {
        Frame frame(&window, u"Frame2"_s, u"收入记录"_s);
        frame.setRole(role);
        frame.place(120, 1680, 11655, 6255);
        EXPECT_LE(tagOf(frame).bottom() + 1, ControlsBegin);
        const QColor tag = role == Role::InnerFrame ? colour::LeafTag : colour::LeafDeep;
        const QImage image = rendered(window);
        EXPECT_TRUE(isNear(pixelAt(image, 8 + 14, 112 + 8), tag)) << static_cast<int>(role);
        EXPECT_FALSE(isNear(pixelAt(image, 8 + 14, 112 + ControlsBegin), tag)) << static_cast<int>(role);
    }
}

TEST_F(Frames, NoTitleNoTag) {
    Frame frame(&window, u"Frame11"_s);
    frame.setRole(Role::InnerFrame);
    frame.place(240, 2000, 5000, 2000);
    EXPECT_TRUE(tagOf(frame).isNull());
}

TEST_F(Frames, APageThatReachesUnderTheLabelsKeepsItsPanelBelowThem) {
    Frame categories(&window, u"Frame3"_s, u"分类设置"_s);
    categories.setRole(Role::PageFrame);
    categories.place(240, 1200, 12015, 6615);
    EXPECT_EQ(panelOf(categories), QRect(0, 32, 769, 409));
    Frame ledger(&window, u"Frame2"_s, u"收入记录"_s);
    ledger.setRole(Role::PageFrame);
    ledger.place(120, 1680, 11655, 6255);
    EXPECT_EQ(panelOf(ledger), ledger.rect());
}

TEST_F(Frames, PagesLetThePictureThroughMostAtTheirFoot) {
    QImage skin(1600, 1080, QImage::Format_RGB32);
    skin.fill(QColor(150, 200, 100));
    window.setPicture(skin);
    Frame page(&window, u"Frame2"_s, u"收入记录"_s);
    page.setRole(Role::PageFrame);
    page.place(120, 1680, 11655, 6255);
    const QImage image = rendered(window);
    EXPECT_GE(pixelAt(image, 400, 300).blue(), 236);
    EXPECT_LT(pixelAt(image, 400, 526).blue(), 215);
}

TEST_F(Frames, OverADarkPicturePagesAreFlat) {
    QImage photo(1600, 1080, QImage::Format_RGB32);
    photo.fill(QColor(20, 20, 20));
    window.setPicture(photo);
    Frame page(&window, u"Frame2"_s, u"收入记录"_s);
    page.setRole(Role::PageFrame);
    page.place(120, 1680, 11655, 6255);
    const QImage image = rendered(window);
    EXPECT_EQ(pixelAt(image, 400, 300), pixelAt(image, 400, 526));
    EXPECT_GE(qGray(pixelAt(image, 400, 300).rgb()), 235);
}

TEST_F(Frames, ABareFramePaintsNothing) {
    const QImage before = rendered(window);
    Frame frame(&window, u"Frame11"_s);
    frame.setRole(Role::BareFrame);
    frame.place(240, 2000, 5000, 2000);
    EXPECT_EQ(rendered(window), before);
}

TEST_F(Frames, TheTagOfAStripEndsBeforeItsFirstWords) {
    Frame strip(&window, u"Frame1"_s, u"查询"_s);
    strip.setRole(Role::StripFrame);
    strip.place(0, 0, 6135, 615);
    EXPECT_LT(tagOf(strip).right(), 720 / 15 - 4);
}

TEST_F(Frames, AStripKeepsClearOfItsNeighbours) {
    const QImage before = rendered(window);
    Frame strip(&window, u"Frame1"_s);
    strip.setRole(Role::StripFrame);
    strip.place(1500, 3000, 6000, 615);
    const QImage after = rendered(window);
    EXPECT_EQ(pixelAt(after, 300, 201), pixelAt(before, 300, 201));
    EXPECT_TRUE(isNear(pixelAt(after, 300, 210), colour::Strip));
    EXPECT_EQ(pixelAt(after, 300, 238), pixelAt(before, 300, 238));
}

} // namespace
} // namespace qinghe::testing
