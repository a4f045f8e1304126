#include "controls/forms.h"
#include "window_fixture.h"

#include <QGuiApplication>
#include <QScreen>

namespace qinghe::testing {
namespace {

class FormTest : public WindowTest {};

TEST_F(FormTest, PlacesInTwipsComeBackAsTheyWereGiven) {
    Label& label = put<Label>(form, u"Label1"_s, {1321, 1567.5, 3256, 301});
    EXPECT_EQ(label.Left(), 1321);
    EXPECT_EQ(label.Top(), 1567.5);
    EXPECT_EQ(label.Width(), 3256);
    EXPECT_EQ(label.Height(), 301);
    form.place(1007, 1003, 6001, 4507);
    turnLoop();
    EXPECT_EQ(form.Left(), 1007);
    EXPECT_EQ(form.Top(), 1003);
    EXPECT_EQ(form.Width(), 6001);
    EXPECT_EQ(form.Height(), 4507);
}

TEST_F(FormTest, PixelsFollowTheTwipsWithNeighboursThatMeet) {
    Label& left = put<Label>(form, u"Label1"_s, {0, 0, 1087, 300});
    Label& right = put<Label>(form, u"Label2"_s, {1087, 0, 1087, 300});
    EXPECT_EQ(left.geometry(), QRect(0, 0, 72, 20));
    EXPECT_EQ(right.geometry(), QRect(72, 0, 73, 20));
}

TEST_F(FormTest, OneSideCanBeMovedAlone) {
    Label& label = put<Label>(form, u"Label1"_s, {150, 300, 450, 600});
    label.setLeft(1500);
    label.setTop(3000);
    label.setWidth(750);
    label.setHeight(900);
    EXPECT_EQ(label.geometry(), QRect(100, 200, 50, 60));
}

TEST_F(FormTest, PlacesColoursAndVisibilityAreReachedFromOutsideByName) {
    put<Label>(form, u"Label2(0)"_s, {0, 0, 960, 480});
    QObject* label = form.findChild<QObject*>(u"Label2(0)"_s);
    ASSERT_TRUE(label);
    for (const char* name : {"Left", "Top", "Width", "Height"}) {
        EXPECT_TRUE(label->setProperty(name, 1234.5)) << name;
        EXPECT_EQ(label->property(name).toDouble(), 1234.5) << name;
    }
    for (const char* name : {"ForeColor", "BackColor"}) {
        EXPECT_TRUE(label->setProperty(name, 0x0000FFu)) << name;
        EXPECT_EQ(label->property(name).toUInt(), 255u) << name;
    }
    EXPECT_TRUE(label->property("Visible").toBool());
    EXPECT_TRUE(label->setProperty("Visible", false));
    EXPECT_FALSE(qobject_cast<QWidget*>(label)->isVisible());
    EXPECT_EQ(form.property("Width").toDouble(), 6000);
}

TEST_F(FormTest, AControlKeepsItsOwnVisibilityWhileItsContainerIsHidden) {
    Frame& frame = put<Frame>(form, u"Frame2"_s, {0, 0, 3000, 3000});
    Label& label = put<Label>(frame, u"Label10"_s, {0, 0, 960, 480});
    frame.setShown(false);
    EXPECT_TRUE(label.Visible());
    EXPECT_FALSE(label.isVisible());
}

TEST_F(FormTest, ColoursAreKeptAsBlueGreenRed) {
    EXPECT_EQ(colourOf(255), QColor(255, 0, 0));
    EXPECT_EQ(colourOf(0x00123456), QColor(0x56, 0x34, 0x12));
    EXPECT_EQ(bgrOf(QColor(0x56, 0x34, 0x12)), 0x00123456u);
}

TEST_F(FormTest, MouseEventsTellTheirPlaceInTwips) {
    pointer::move(form, {10, 20});
    form.MouseDown = [this](double x, double y) { note(u"down %1 %2"_s.arg(x).arg(y)); };
    form.MouseMove = [this](double x, double y) { note(u"move %1 %2"_s.arg(x).arg(y)); };
    form.MouseUp = [this](double x, double y) { note(u"up %1 %2"_s.arg(x).arg(y)); };
    pointer::press(form, {10, 20});
    pointer::move(form, {12, 21});
    pointer::release(form, {12, 21});
    EXPECT_EQ(noted(), (QStringList{u"down 150 300"_s, u"move 180 315"_s, u"up 180 315"_s, u"Form2"_s}));
}

TEST_F(FormTest, AMoveThatWasUnderWayTellsWhereThePointerIsInTheFormNow) {
    pointer::press(form, {10, 20});
    form.moveTo(600, 900);
    turnLoop();
    QStringList moves;
    form.MouseMove = [&](double x, double y) { moves << u"%1 %2"_s.arg(x).arg(y); };
    pointer::moveUnderWay(form, {52, 83}, {52, 83}); // told while the form stood at 0, 0
    EXPECT_EQ(moves, QStringList{u"180 345"_s});
}

TEST_F(FormTest, TheReleaseThatEndsAMoveOfTheWindowIsNoClick) {
    form.MouseMove = [this](double x, double) {
        if (x > 300)
            form.setLeft(form.Left() + 150);
    };
    pointer::press(form, {10, 10});
    pointer::move(form, {40, 10});
    pointer::release(form, {30, 10});
    EXPECT_EQ(noted(), QStringList{});
    pointer::click(form, {10, 10});
    EXPECT_EQ(noted(), QStringList{u"Form2"_s});
}

TEST_F(FormTest, AReleaseOutsideTheFormIsNoClick) {
    pointer::press(form, {10, 10});
    pointer::release(form, {-10, 10});
    EXPECT_EQ(noted(), QStringList{});
}

TEST_F(FormTest, LeftAndTopFollowRealMoves) {
    form.move(40, 60);
    turnLoop();
    EXPECT_EQ(form.Left(), 600);
    EXPECT_EQ(form.Top(), 900);
}

TEST_F(FormTest, ResizeIsRaisedForANewSizeAndForMinimising) {
    form.Resize = [this] { note(u"resize %1"_s.arg(form.WindowState())); };
    form.setWidth(4500);
    turnLoop();
    EXPECT_EQ(noted(), QStringList{u"resize 0"_s});
    form.setWindowState(1);
    turnLoop();
    EXPECT_TRUE(noted().contains(u"resize 1"_s));
    form.setWindowState(0);
    EXPECT_EQ(form.WindowState(), 0);
}

TEST_F(FormTest, KeepsItsSizeWhenTheDesktopWouldHaveItFillTheScreen) {
    const QRect before = form.geometry();
    for (const Qt::WindowState state : {Qt::WindowFullScreen, Qt::WindowMaximized}) {
        form.windowHandle()->setWindowState(state);
        turnLoop();
        EXPECT_EQ(form.windowHandle()->windowState(), Qt::WindowNoState);
        EXPECT_EQ(form.geometry(), before);
    }
}

TEST_F(FormTest, IsKeptOnTheScreen) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    form.moveTo((room.right() - 10) * TwipsPerPixel, (room.bottom() - 10) * TwipsPerPixel);
    form.keepOnScreen();
    EXPECT_EQ(form.geometry().right(), room.right());
    EXPECT_EQ(form.geometry().bottom(), room.bottom());
    form.moveTo(-900, -900);
    form.keepOnScreen();
    EXPECT_EQ(form.pos(), room.topLeft());
}

TEST_F(FormTest, AFormThatHangsUnderAFieldNeverCoversIt) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    const auto hangUnder = [this](const QRect& field) {
        form.moveTo(field.left() * TwipsPerPixel, (field.bottom() + 1) * TwipsPerPixel);
        form.keepOnScreen(field);
        return form.frameGeometry();
    };
    const QSize field(76, 20);
    const QPoint middle = room.center();
    const QRect below = hangUnder({middle - QPoint(0, 200), field});
    EXPECT_EQ(below.topLeft(), middle + QPoint(0, field.height() - 200));
    for (const int y : {room.bottom() - 20, room.bottom() - 100}) {
        const QRect above = hangUnder({{middle.x(), y}, field});
        EXPECT_EQ(above.bottom(), y - 1);
        EXPECT_EQ(above.left(), middle.x());
    }
    // As high as the screen: beside it, on the right while there is room.
    form.setHeight((room.height() - 40) * TwipsPerPixel);
    const QRect right = hangUnder({{room.left() + 40, middle.y()}, field});
    EXPECT_EQ(right.left(), room.left() + 40 + field.width());
    EXPECT_TRUE(room.contains(right));
    const QRect left = hangUnder({{room.right() - 100, middle.y()}, field});
    EXPECT_EQ(left.right(), room.right() - 101);
    EXPECT_TRUE(room.contains(left));
}

TEST_F(FormTest, AFormThatLiesOnTheScreenStaysToTheTwip) {
    form.moveTo(1007, 1003);
    form.keepOnScreen();
    EXPECT_EQ(form.Left(), 1007);
    EXPECT_EQ(form.Top(), 1003);
}

TEST_F(FormTest, AFormIsPlacedInTheMiddleOfAnother) {
    form.place(1500, 3000, 6000, 4500);
    Form above(u"Form13"_s, Form::Kind::Dialog, Ground::Dialog, &form);
    above.placeInMiddle(3000, 1501, &form);
    EXPECT_EQ(above.Left(), 3000);
    EXPECT_EQ(above.Top(), 4499.5);
    EXPECT_EQ(above.Width(), 3000);
    EXPECT_EQ(above.Height(), 1501);
}

TEST_F(FormTest, AFormIsPlacedInTheMiddleOfTheScreen) {
    form.placeInMiddle(4000, 2000);
    const QPoint centre = form.screen()->availableGeometry().center();
    EXPECT_EQ(form.Left(), centre.x() * 15 - 2000);
    EXPECT_EQ(form.Top(), centre.y() * 15 - 1000);
    EXPECT_EQ(form.Width(), 4000);
    EXPECT_EQ(form.Height(), 2000);
}

TEST_F(FormTest, AnOwnedDialogStaysAboveItsOwner) {
    EXPECT_EQ(Form(u"Form7"_s, Form::Kind::Dialog, Ground::Dialog).windowType(), Qt::Window);
    const Form owned(u"Form13"_s, Form::Kind::Dialog, Ground::Dialog, &form);
    EXPECT_EQ(owned.windowType(), Qt::Dialog);
    EXPECT_EQ(owned.windowModality(), Qt::NonModal);
}

TEST_F(FormTest, TheShapeOfAWindowIsAPolygonOfPixels) {
    form.setShape(QPolygon({{0, 100}, {100, 0}, {400, 0}, {400, 300}, {0, 300}}));
    EXPECT_FALSE(form.mask().contains(QPoint(10, 10)));
    EXPECT_TRUE(form.mask().contains(QPoint(390, 10)));
    EXPECT_TRUE(form.mask().contains(QPoint(10, 290)));
}

TEST_F(FormTest, ToolsStayAboveTheirOwnerAndOnlyTheQuietOneLeavesTheKeyboardAlone) {
    const Form tool(u"Form9"_s, Form::Kind::Tool, Ground::Calculator, &form);
    const Form quiet(u"Form1"_s, Form::Kind::QuietTool, Ground::Pine, &form);
    for (const Form* window : {&tool, &quiet}) {
        EXPECT_EQ(window->windowType(), Qt::Tool);
        EXPECT_EQ(window->parentWidget(), &form);
        EXPECT_TRUE(window->isWindow());
    }
    EXPECT_FALSE(tool.windowFlags() & Qt::WindowDoesNotAcceptFocus);
    EXPECT_TRUE(quiet.windowFlags() & Qt::WindowDoesNotAcceptFocus);
    EXPECT_TRUE(quiet.testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST_F(FormTest, EscClosesADialogAndNoOtherWindow) {
    for (const Form::Kind kind : {Form::Kind::Dialog, Form::Kind::Frameless, Form::Kind::Notice}) {
        Form window(u"Form3"_s, kind, Ground::Dialog);
        auto* box = new TextBox(&window, u"Text1"_s); // which has no use for the key
        bool closed = false;
        window.CloseAsked = [&closed] { closed = true; };
        window.showForm();
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, {}, u"\x1b"_s, true);
        QCoreApplication::sendEvent(box, &held);
        EXPECT_FALSE(closed);
        QTest::keyClick(box, Qt::Key_Escape);
        EXPECT_EQ(closed, kind == Form::Kind::Dialog);
    }
}

} // namespace
} // namespace qinghe::testing
