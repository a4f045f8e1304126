#include "controls/combo_box.h"
#include "controls/controls.h"
#include "look/colours.h"
#include "look/drawing.h"
#include "rendering.h"

#include <QMessageBox>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTextBlock>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

struct Buttons : ::testing::Test {
    Buttons() : button(&ground, u"Command1"_s, u"增加"_s) {
        setGround(ground, Qt::white);
        ground.resize(200, 60);
        button.place(0, 0, 1080, 390);
    }
    QColor fill() { return pixelAt(rendered(ground), 6, 13); }
    QColor edge(double ratio = 1) { return rendered(ground, ratio).pixelColor(0, qRound(13 * ratio)); }

    QWidget ground;
    CommandButton button;
};

TEST_F(Buttons, TheFillIsTheBackColor) {
    EXPECT_TRUE(isNear(fill(), Qt::white));
    button.setBackColor(0xE0E0E0);
    EXPECT_TRUE(isNear(fill(), colour::Hovered));
}

TEST_F(Buttons, PressedAndDisabledHaveTheirOwnFill) {
    button.setDown(true);
    EXPECT_TRUE(isNear(fill(), colour::Pressed));
    button.setDown(false);
    button.setEnabled(false);
    EXPECT_TRUE(isNear(fill(), colour::OffBg));
    EXPECT_TRUE(extent(rendered(ground), isDarkInk).isNull()) << "caption and icon are pale";
}

TEST_F(Buttons, ThePrimaryOneHasADeepEdge) {
    EXPECT_TRUE(isNear(edge(), colour::Ctl));
    button.setRole(Role::Primary);
    EXPECT_TRUE(isNear(edge(), colour::LeafDeep));
}

TEST_F(Buttons, TheEdgeIsSharpAtEveryScale) {
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const QImage image = rendered(ground, ratio);
        const int y = qRound(13 * ratio), hair = qRound(ratio);
        for (int x = 0; x < hair; ++x)
            EXPECT_TRUE(isNear(image.pixelColor(x, y), colour::Ctl)) << ratio << ' ' << x;
        EXPECT_TRUE(isNear(image.pixelColor(hair, y), Qt::white)) << ratio;
    }
}

TEST_F(Buttons, AMarkIsAnAmberDotInTheCorner) {
    const auto isAmber = [](const QColor& colour) { return isNear(colour, colour::Amber, 8); };
    EXPECT_TRUE(extent(rendered(ground), isAmber).isNull());
    button.setMark(u"还没有保存"_s);
    const QRect dot = extent(rendered(ground), isAmber);
    EXPECT_FALSE(dot.isNull());
    EXPECT_GT(dot.left(), button.width() - 12);
    EXPECT_LT(dot.bottom(), button.height() / 2);
    button.setUsable(false);
    EXPECT_TRUE(extent(rendered(ground), isAmber).isNull());
}

TEST_F(Buttons, AnAmpersandIsShown) {
    button.setText(u"AB"_s);
    const int without = extent(rendered(ground), isDarkInk).width();
    button.setText(u"A&B"_s);
    EXPECT_GT(extent(rendered(ground), isDarkInk).width(), without + 4);
}

TEST_F(Buttons, AnIconStandsLeftOfTheCaption) {
    const auto isInk = [](const QColor& c) { return c.alpha() > 128 && qGray(c.rgb()) < 60; };
    const int bare = extent(rendered(ground), isInk).left();
    button.setGlyph(Glyph::Add);
    EXPECT_GT(extent(rendered(ground), isInk).left(), bare);
    const auto isLeaf = [](const QColor& c) { return c.green() > c.red() + 20 && c.green() > c.blue() + 30; };
    EXPECT_LT(extent(rendered(ground), isLeaf).left(), bare);
}

TEST(Drawing, RulesFillWholeDevicePixels) {
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
        const QImage image =
            drawn(QSize(20, 20), ratio, [](QPainter& painter) { paintRule(painter, 0, 20, 7, colour::LeafDeep); });
        for (int y = 0; y < image.height(); ++y) {
            const int alpha = image.pixelColor(4, y).alpha();
            EXPECT_TRUE(alpha == 0 || alpha == 255) << ratio << ' ' << y;
        }
        EXPECT_EQ(extent(image, [](const QColor& c) { return c.alpha() > 0; }).height(), qMax(1, qRound(ratio)));
    }
}

TEST(Options, TheMarkShowsTheState) {
    QWidget ground;
    setGround(ground, Qt::white);
    ground.resize(200, 60);
    OptionButton option(&ground, u"Option1"_s, u"借入表"_s);
    option.place(0, 0, 1200, 300);
    EXPECT_TRUE(isNear(pixelAt(rendered(ground), 8, 10), Qt::white));
    option.setValue(true);
    EXPECT_TRUE(isNear(pixelAt(rendered(ground), 8, 10), colour::LeafDeep));
    EXPECT_TRUE(isNear(pixelAt(rendered(ground), 3, 10), Qt::white)) << "between dot and edge";
}

TEST(Ticks, AFilledBoxHoldsAWhiteTick) {
    QWidget ground;
    setGround(ground, Qt::white);
    ground.resize(200, 60);
    CheckBox tick(&ground, u"Check1"_s, u"记住"_s);
    tick.place(0, 0, 1200, 300);
    EXPECT_TRUE(isNear(pixelAt(rendered(ground), 3, 4), Qt::white));
    tick.setValue(true);
    EXPECT_TRUE(isNear(pixelAt(rendered(ground), 3, 4), colour::LeafDeep));
    EXPECT_GT(pixelAt(rendered(ground), 6, 12).red(), 200);
}

TEST(Fields, TextOfABoxAndOfAListBeginsAtTheSamePlace) {
    QWidget ground;
    setGround(ground, Qt::white);
    ground.resize(200, 120);
    TextBox box(&ground, u"Text1"_s);
    box.place(0, 0, 1800, 330);
    box.setBoxText(u"田"_s);
    ComboBox typed(&ground, u"Combo1"_s, true), chosen(&ground, u"Combo2"_s, false);
    for (ComboBox* list : {&typed, &chosen}) {
        list->addEntry(u"田"_s);
        list->place(0, list == &typed ? 600 : 1200, 1800, 330);
        list->setText(u"田"_s);
    }
    const QImage image = rendered(ground);
    const int left = extent(image.copy(2, 0, 60, 22), isDarkInk).left();
    EXPECT_EQ(extent(image.copy(2, 40, 60, 22), isDarkInk).left(), left);
    EXPECT_EQ(extent(image.copy(2, 80, 60, 22), isDarkInk).left(), left);
}

TEST(Fields, ThePasswordShowsStars) {
    TextBox box(nullptr, u"Text2"_s);
    EXPECT_EQ(box.style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter, nullptr, &box), '*');
}

TEST(WritingPaper, HasARuleBelowEveryLine) {
    QPlainTextEdit text;
    text.resize(320, 240);
    text.setPlainText(u"一\n二\n三"_s);
    text.ensurePolished();
    const QImage image = rendered(text);
    QTextCursor second(text.document()->findBlockByNumber(1));
    const int spacing = text.cursorRect(second).top() - text.cursorRect(QTextCursor(text.document())).top();
    for (int line = 1; line <= 5; ++line)
        EXPECT_TRUE(isNear(pixelAt(image, 250, 2 + 10 + line * spacing - 1), colour::PaperLine)) << line;
    EXPECT_TRUE(isNear(pixelAt(image, 250, 20), colour::Paper));
}

TEST(WritingPaper, HasItsRulesWhereALongTextWasScrolledTo) {
    const QString words = u"rice and water "_s;
    for (const QString& content : {words.repeated(200), (words.repeated(8) + u'\n').repeated(40)}) {
        QPlainTextEdit text;
        text.resize(320, 240);
        text.setPlainText(content);
        text.ensurePolished();
        rendered(text);
        text.verticalScrollBar()->setValue(31);
        const QImage image = rendered(text);
        const QRect first = text.cursorRect(text.cursorForPosition(QPoint(0, 0)));
        const QPoint corner = text.viewport()->pos();
        const int right = corner.x() + text.viewport()->width() - 12; // where no line reaches
        for (int line = 1; line <= 8; ++line)
            EXPECT_TRUE(
                isNear(pixelAt(image, right, corner.y() + first.top() + line * first.height() - 1), colour::PaperLine))
                << line;
    }
}

TEST(Progress, TheBarIsAsLongAsItsValue) {
    QWidget ground;
    setGround(ground, Qt::white);
    ground.resize(320, 60);
    ProgressBar bar(&ground, u"Pro1"_s);
    bar.place(0, 0, 4440, 285);
    bar.setTextVisible(false);
    QProgressBar& shown = bar; // our own values wait until the last one has been seen
    const auto isBar = [](const QColor& c) { return c.green() > c.blue() + 80; };
    shown.setValue(0);
    EXPECT_TRUE(extent(rendered(ground), isBar).isNull());
    shown.setValue(50);
    EXPECT_NEAR(extent(rendered(ground), isBar).right(), 148, 1);
    shown.setValue(100);
    EXPECT_NEAR(extent(rendered(ground), isBar).right(), 293, 1);
}

TEST(ScrollBars, PartsFillTheBarWithoutGap) {
    QStyleOptionSlider option;
    option.rect = QRect(0, 0, 12, 200);
    option.orientation = Qt::Vertical;
    option.maximum = 1000;
    option.pageStep = 15;
    option.sliderPosition = 400;
    QWidget widget;
    const auto part = [&](QStyle::SubControl which) {
        return widget.style()->subControlRect(QStyle::CC_ScrollBar, &option, which, &widget);
    };
    EXPECT_EQ(part(QStyle::SC_ScrollBarSubPage).bottom() + 1, part(QStyle::SC_ScrollBarSlider).top());
    EXPECT_EQ(part(QStyle::SC_ScrollBarSlider).bottom() + 1, part(QStyle::SC_ScrollBarAddPage).top());
    EXPECT_EQ(part(QStyle::SC_ScrollBarAddPage).bottom(), 199);
    EXPECT_GE(part(QStyle::SC_ScrollBarSlider).height(), 24);
    option.sliderPosition = option.maximum;
    EXPECT_EQ(part(QStyle::SC_ScrollBarSlider).bottom(), 199);
}

TEST(MessageBoxes, HaveRoomForEveryOneOfTheirShortLines) {
    for (const int lines : {1, 2, 5, 20}) {
        QMessageBox box(QMessageBox::Warning, u"提示"_s, u"行\n"_s.repeated(lines).chopped(1), QMessageBox::Ok);
        box.show();
        const auto* words = box.findChild<QLabel*>(u"qt_msgbox_label"_s);
        EXPECT_GE(words->height(), words->sizeHint().height()) << lines;
    }
}

TEST(MessageBoxes, TheDefaultButtonIsThePrimaryOne) {
    QMessageBox box(QMessageBox::Question, u"提示"_s, u"是否需要删除?"_s, QMessageBox::Ok | QMessageBox::Cancel);
    box.setDefaultButton(QMessageBox::Ok);
    box.show();
    const auto edge = [&](QMessageBox::StandardButton which) {
        QWidget* button = box.button(which);
        return pixelAt(rendered(*button), 0.5, button->height() / 2.0);
    };
    EXPECT_TRUE(isNear(edge(QMessageBox::Ok), colour::LeafDeep));
    EXPECT_TRUE(isNear(edge(QMessageBox::Cancel), colour::Ctl));
    EXPECT_GE(box.button(QMessageBox::Ok)->width(), 84);
    EXPECT_GE(box.button(QMessageBox::Ok)->height(), 28);
}

TEST(MessageBoxes, IconsAreDiscsOfTheProgramsOwn) {
    QWidget widget;
    const auto disc = [&](QStyle::StandardPixmap which) {
        return widget.style()->standardIcon(which).pixmap(QSize(40, 40)).toImage();
    };
    EXPECT_TRUE(isNear(disc(QStyle::SP_MessageBoxInformation).pixelColor(5, 20), colour::LeafPale));
    EXPECT_TRUE(isNear(disc(QStyle::SP_MessageBoxWarning).pixelColor(5, 20), colour::AmberDisc));
    EXPECT_NE(disc(QStyle::SP_MessageBoxInformation), disc(QStyle::SP_MessageBoxQuestion));
}

TEST(MessageBoxes, AShortCutInAButtonIsNotShown) {
    QPushButton plain(u"是"_s), marked(u"是(&Y)"_s);
    for (QPushButton* button : {&plain, &marked})
        button->resize(84, 28);
    EXPECT_EQ(rendered(plain), rendered(marked));
}

} // namespace
} // namespace qinghe::testing
