#include "controls/web_browser.h"
#include "core/window_shape.h"
#include "core_fixture.h"
#include "delivery/web_pages.h"
#include "support/pointer.h"

#include <QScrollBar>
#include <QTextBlock>

namespace qinghe::testing {
namespace {

constexpr QPoint BareBand{400, 20}; ///< between the program's name and the window images

class WindowBand : public CoreTest {
protected:
    void SetUp() override { rig.signIn(); }
    Form& web() { return *rig.loaded(forms::Web); }
};

TEST(WindowShape, RoundsTheUpperCornersByFivePixelsAndUsesWidthAndHeightThemselves) {
    const QPolygon expected({{0, 5},
                             {1, 4},
                             {1, 3},
                             {2, 2},
                             {3, 1},
                             {4, 1},
                             {5, 0},
                             {795, 0},
                             {796, 1},
                             {797, 1},
                             {798, 2},
                             {799, 3},
                             {799, 4},
                             {800, 5},
                             {800, 540},
                             {0, 540}});
    EXPECT_EQ(mainWindowPolygon(800, 540), expected);
}

TEST_F(WindowBand, TheMainWindowHasItsShapeAndNoFrame) {
    const int width = main().width(), height = main().height();
    EXPECT_EQ(main().mask(), QRegion(mainWindowPolygon(width, height)));
    EXPECT_FALSE(main().mask().contains(QPoint(0, 0)));
    EXPECT_TRUE(main().mask().contains(QPoint(0, height - 1)));
    EXPECT_TRUE(main().windowFlags() & Qt::FramelessWindowHint);
}

TEST_F(WindowBand, EachOfTheFourImagesUnloadsTheTools) {
    for (const QString& image : QStringList{title::Minimise, title::Tools, title::About, title::Close}) {
        openTools();
        click(image);
        EXPECT_FALSE(toolsOpen()) << image.toStdString();
    }
}

TEST_F(WindowBand, TheMinimiseImageMinimises) {
    click(title::Minimise);
    EXPECT_EQ(main().WindowState(), 1);
    EXPECT_TRUE(main().Visible());
    EXPECT_TRUE(rig.tray->added.empty());
    main().setWindowState(0);
    EXPECT_EQ(main().WindowState(), 0);
}

TEST_F(WindowBand, TheToolsWindowStandsToTheRightOfTheMainWindowInItsSize) {
    main().moveTo(1500, 900);
    click(title::Tools);
    EXPECT_TRUE(web().isVisible());
    EXPECT_EQ(web().Caption(), u"软件工具"_s);
    EXPECT_EQ(web().Left(), 1500 + main().Width());
    EXPECT_EQ(web().Top(), 900);
    EXPECT_EQ(web().Width(), main().Width());
    EXPECT_EQ(web().Height(), main().Height());
    EXPECT_EQ(rig.at(web::Browser).size(), web().size());
}

TEST_F(WindowBand, TheToolsWindowFollowsWhenItIsAskedForAgainAndCanBeClosed) {
    click(title::Tools);
    main().moveTo(300, 600);
    click(title::Tools);
    EXPECT_EQ(web().Left(), 300 + main().Width());
    EXPECT_EQ(web().Top(), 600);
    web().close();
    EXPECT_EQ(rig.loaded(forms::Web), nullptr);
    EXPECT_FALSE(rig.ended());
}

TEST_F(WindowBand, TheToolsWindowShowsTheDeliveredPage) {
    deliverWebPages(rig.folder());
    click(title::Tools);
    auto& browser = rig.at(web::Browser);
    EXPECT_EQ(browser.source(), QUrl::fromLocalFile(rig.file(u"web/softs.htm"_s)));
    EXPECT_FALSE(browser.toPlainText().isEmpty());
}

TEST_F(WindowBand, TheToolsWindowShowsEveryPageOfTheManualWithItsPictures) {
    deliverWebPages(rig.folder());
    click(title::Tools);
    auto& browser = rig.at(web::Browser);
    int pictures = 0;
    for (const QString& page : webPageNames().mid(2)) {
        emit browser.anchorClicked(QUrl(page));
        EXPECT_EQ(browser.source().fileName(), page);
        EXPECT_EQ(browser.horizontalScrollBar()->maximum(), 0) << page.toStdString();
        for (QTextBlock block = browser.document()->begin(); block.isValid(); block = block.next())
            for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
                const QString name = piece.fragment().charFormat().toImageFormat().name();
                const QVariant image =
                    static_cast<QTextBrowser&>(browser).loadResource(QTextDocument::ImageResource, QUrl(name));
                EXPECT_TRUE(name.isEmpty() || !image.isNull()) << page.toStdString() << ' ' << name.toStdString();
                pictures += !name.isEmpty();
            }
    }
    EXPECT_GE(pictures, 40) << "the icon on each, and those of the program";
    EXPECT_TRUE(rig.launcher->opened.empty());
}

TEST_F(WindowBand, ALinkOutOfTheToolsWindowOpensInTheSystemsBrowser) {
    deliverWebPages(rig.folder());
    click(title::Tools);
    emit rig.at(web::Browser).anchorClicked(QUrl(u"http://qinghe.example/"_s));
    EXPECT_EQ(rig.launcher->opened, std::vector<QUrl>{QUrl(u"http://qinghe.example/"_s)});
}

TEST_F(WindowBand, ALinkThatWouldShowAFileOrStartAProgramIsNotFollowed) {
    deliverWebPages(rig.folder());
    click(title::Tools);
    const auto follow = [this](const QString& link) { emit rig.at(web::Browser).anchorClicked(QUrl(link)); };
    for (const QString& link :
         {u"file:///etc/passwd"_s, u"../data.dll"_s, u"smb://host/share"_s, u"javascript:alert(1)"_s, u"http:///x"_s,
          u"mailto:a@b.example?attach=/etc/passwd"_s, u"mailto:a@b.example?subject=x&ATTACHMENT=/etc/passwd"_s,
          u"apt:xterm"_s, u"data:text/html,x"_s})
        follow(link);
    EXPECT_TRUE(rig.launcher->opened.empty());
    EXPECT_TRUE(rig.messages->shown.empty());
    follow(u"mailto:a@b.example?subject=x"_s);
    follow(u"https://qinghe.example/a"_s);
    EXPECT_EQ(rig.launcher->opened.size(), 2u);
    EXPECT_FALSE(rig.ended());
}

TEST_F(WindowBand, APageThatIsNotThereIsTold) {
    click(title::About);
    EXPECT_TRUE(rig.launcher->opened.empty());
    EXPECT_TRUE(rig.lastMessage().text.contains(u"adetail.htm"_s));
}

TEST_F(WindowBand, WithoutABrowserThePagesOpenInTheProgramsOwnWindow) {
    deliverWebPages(rig.folder());
    rig.launcher->present = false;
    click(title::About);
    EXPECT_TRUE(web().isVisible());
    EXPECT_EQ(web().Left(), main().Left() + main().Width());
    EXPECT_EQ(rig.at(web::Browser).source().fileName(), u"adetail.htm"_s);
    EXPECT_EQ(web().Caption(), rig.at(web::Browser).documentTitle());
    click(title::WebAddress);
    EXPECT_EQ(rig.at(web::Browser).source().fileName(), u"index.htm"_s);
    click(title::Tools);
    EXPECT_EQ(rig.at(web::Browser).source().fileName(), u"softs.htm"_s);
    EXPECT_EQ(web().Caption(), u"软件工具"_s);
    emit rig.at(web::Browser).anchorClicked(QUrl(u"http://qinghe.example/"_s));
    EXPECT_TRUE(rig.lastMessage().text.contains(u"http://qinghe.example/"_s));
}

TEST_F(WindowBand, IntroductionAndAddressOpenPagesThatAreThere) {
    deliverWebPages(rig.folder());
    click(title::About);
    click(title::WebAddress);
    const QUrl introduction = QUrl::fromLocalFile(rig.file(u"web/adetail.htm"_s));
    const QUrl home = QUrl::fromLocalFile(rig.file(u"web/index.htm"_s));
    EXPECT_EQ(rig.launcher->opened, (std::vector<QUrl>{introduction, home}));
    for (const QUrl& page : rig.launcher->opened)
        EXPECT_TRUE(QFile::exists(page.toLocalFile())) << page.toString().toStdString();
}

TEST_F(WindowBand, TheAddressLeavesTheToolsOpen) {
    openTools();
    click(title::WebAddress);
    EXPECT_TRUE(rig.loaded(forms::DatePicker) && rig.loaded(forms::Calculator));
    EXPECT_FALSE(caption(title::WebAddress).isEmpty());
}

TEST_F(WindowBand, ADragMovesTheWindowByTheWayOfThePointer) {
    main().moveTo(1507, 904);
    rig.settle();
    pointer::press(main(), BareBand);
    pointer::move(main(), BareBand + QPoint(10, 5));
    EXPECT_EQ(main().Left(), 1507 + 150);
    EXPECT_EQ(main().Top(), 904 + 75);
    // The window has come along: the same place in it is the pointer's again.
    pointer::move(main(), BareBand + QPoint(-3, 0));
    EXPECT_EQ(main().Left(), 1507 + 150 - 45);
    pointer::release(main(), BareBand);
    EXPECT_EQ(main().Top(), 904 + 75);
}

TEST_F(WindowBand, AFastDragStaysUnderThePointer) {
    main().moveTo(1507, 904);
    rig.settle();
    const QPoint start = main().pos() + BareBand;
    pointer::press(main(), BareBand);
    // The window system has not yet moved the window when it tells of these moves.
    for (const int way : {20, 40, 60})
        pointer::moveUnderWay(main(), BareBand + QPoint(way, way / 2), start + QPoint(way, way / 2));
    EXPECT_EQ(main().Left(), 1507 + 60 * 15);
    EXPECT_EQ(main().Top(), 904 + 30 * 15);
    pointer::release(main(), BareBand);
}

TEST_F(WindowBand, ADragThatTheDesktopReportsLateStaysUnderThePointer) {
    main().moveTo(1500, 900);
    rig.settle();
    const QPoint start = main().pos() + BareBand;
    pointer::press(main(), BareBand);
    pointer::moveUnderWay(main(), BareBand + QPoint(20, 0), start + QPoint(20, 0));
    main().move(start - BareBand + QPoint(5, 0)); // where the window stood a while ago
    pointer::moveUnderWay(main(), BareBand + QPoint(40, 0), start + QPoint(40, 0));
    EXPECT_EQ(main().Left(), 1500 + 40 * 15);
    pointer::release(main(), BareBand);
}

TEST_F(WindowBand, ADragCanLeaveTheScreenOnTheLeft) {
    main().moveTo(150, 150);
    pointer::press(main(), BareBand);
    pointer::move(main(), BareBand - QPoint(100, 15));
    EXPECT_EQ(main().Left(), 150 - 1500);
    EXPECT_EQ(main().Top(), 150 - 225);
    pointer::release(main(), BareBand);
}

TEST_F(WindowBand, AfterTheReleaseMovesOfThePointerMoveNothing) {
    pointer::press(main(), BareBand);
    pointer::release(main(), BareBand);
    const double left = main().Left();
    pointer::move(main(), BareBand + QPoint(30, 0));
    EXPECT_EQ(main().Left(), left);
}

TEST_F(WindowBand, ADragThatBeginsWithTheDatePickerOpenHidesItFirstAndKeepsItLoaded) {
    openTools();
    const double left = main().Left();
    pointer::press(main(), BareBand);
    ASSERT_TRUE(rig.loaded(forms::DatePicker));
    EXPECT_FALSE(rig.loaded(forms::DatePicker)->Visible());
    EXPECT_TRUE(rig.loaded(forms::Calculator)->Visible());
    EXPECT_EQ(main().Left(), left);
    pointer::move(main(), BareBand + QPoint(2, 0));
    EXPECT_EQ(main().Left(), left + 30);
    pointer::release(main(), BareBand);
}

TEST_F(WindowBand, TheStartOfADragIsKeptWithTheMarkOfAFilledRow) {
    pointer::press(main(), BareBand);
    EXPECT_EQ(rig.program->shared().emptyRowFlag, BareBand.y() * 15);
    pointer::release(main(), BareBand);
}

TEST_F(WindowBand, APressOnAnImageOrALabelDragsNothing) {
    const double left = main().Left();
    for (const QString& name : QStringList{title::Tools, title::Product, pages::Loans, title::Band}) {
        auto& control = label(name);
        pointer::press(control);
        pointer::move(control, control.rect().center() + QPoint(9, 0));
        EXPECT_EQ(main().Left(), left) << name.toStdString();
        pointer::release(main(), BareBand);
    }
}

} // namespace
} // namespace qinghe::testing
