#include "look/fonts.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

/// The first family that is here, by just the name given: names that other families stand in for take long to find out
/// at start. A Chinese desktop knows some families by a Chinese name alone.
QString firstOf(const QStringList& families) {
    const auto found = std::find_if(families.begin(), families.end(),
                                    [](const QString& name) { return !QFontDatabase::styles(name).isEmpty(); });
    return found == families.end() ? QString() : *found;
}

const QString& sansFamily() {
    static const QString Family =
        firstOf({u"Microsoft YaHei UI"_s, u"PingFang SC"_s, u"WenQuanYi Micro Hei"_s, u"文泉驿微米黑"_s,
                 u"文泉驛微米黑"_s, u"Noto Sans CJK SC"_s, u"WenQuanYi Zen Hei"_s, u"文泉驿正黑"_s, u"文泉驛正黑"_s});
    return Family;
}

const QString& serifFamily() {
    static const QString Family = firstOf({u"SimSun"_s, u"宋体"_s, u"Songti SC"_s, u"Noto Serif CJK SC"_s,
                                           u"Source Han Serif SC"_s, u"AR PL UMing CN"_s});
    return Family;
}

constexpr double BoldStroke = 0.045; ///< of the size: what makes a thin outline as dark as a bold face

/// UMing alone has no bold face and is not thickened by Qt.
bool serifLacksBold() {
    return serifFamily() == "AR PL UMing CN"_L1;
}

QFont fontOf(const QString& family, double points, bool bold) {
    static const double DotsPerInch = QGuiApplication::primaryScreen()->logicalDotsPerInchY();
    QFont font;
    if (!family.isEmpty())
        font.setFamilies({family});
    font.setPointSizeF(points * 96 / DotsPerInch);
    font.setBold(bold);
    return font;
}

struct Face {
    Role role;
    double points;
    bool bold;
};

constexpr Face Faces[] = {
    {Role::ProductName, type::Product, true},   {Role::PageLabel, type::Page, false},
    {Role::ChosenLabel, type::Page, true},      {Role::ClockText, type::Small, false},
    {Role::Link, type::Small, false},           {Role::Total, type::Long, true},
    {Role::SignInButton, type::Heading, true},  {Role::MonthTitle, type::Long, true},
    {Role::Help, type::Small, false},           {Role::Caution, type::Small, false},
    {Role::ReminderText, type::Heading, false}, {Role::CalcKey, type::Heading, false},
    {Role::CalcOperator, type::Heading, false}, {Role::CalcDisplay, type::Page, false},
    {Role::WeekRow, type::Small, false},
};

} // namespace

QFont sans(double points, bool bold) {
    return fontOf(sansFamily(), points, bold);
}

QFont figureFont() {
    return fontOf(serifFamily(), type::Message, !serifLacksBold());
}

QFont fontFor(Role role) {
    if (role == Role::Figure)
        return figureFont();
    const auto face = std::find_if(std::begin(Faces), std::end(Faces), [=](const Face& f) { return f.role == role; });
    return face == std::end(Faces) ? sans(type::Body) : sans(face->points, face->bold);
}

double figureWidth(const QString& text) {
    return QFontMetricsF(figureFont()).horizontalAdvance(text);
}

void drawFigure(QPainter& painter, const QPointF& baseline, const QString& text) {
    painter.drawText(baseline, text);
    if (!serifLacksBold())
        return;
    QPainterPath outline;
    outline.addText(baseline, painter.font(), text);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double thickness = BoldStroke * QFontInfo(painter.font()).pixelSize();
    painter.strokePath(outline, QPen(painter.pen().color(), thickness, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.restore();
}

double linePitch(const QFont& font) {
    return 1.5 * QFontInfo(font).pixelSize();
}

} // namespace qinghe
