#pragma once

#include <QProxyStyle>

namespace qinghe {

/// How every control of the program is painted. This class only hands each element to its painter (buttons, fields,
/// frames, words, grids, lists, bars); what it does not name is Fusion's, as in the file chooser. No style sheets: Qt
/// would bypass this style.
class Style : public QProxyStyle {
    Q_OBJECT

public:
    Style();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;

    QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    QIcon standardIcon(StandardPixmap standard, const QStyleOption* option, const QWidget* widget) const override;
    QPalette standardPalette() const override;

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace qinghe
