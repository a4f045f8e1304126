#include "look/style.h"

#include "controls/controls.h"
#include "controls/form.h"
#include "controls/ms_flex_grid.h"
#include "look/bar_painter.h"
#include "look/button_painter.h"
#include "look/colours.h"
#include "look/drawing.h"
#include "look/field_painter.h"
#include "look/fonts.h"
#include "look/frame_painter.h"
#include "look/grid_painter.h"
#include "look/ground_painter.h"
#include "look/image_painter.h"
#include "look/label_painter.h"
#include "look/message_icons.h"
#include "look/palette.h"
#include "look/popup_painter.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int MessageIcon = 40;
constexpr QSize MessageButton(84, 28);
constexpr int ListLine = 24;
constexpr int ComboArrow = 20;
constexpr int WritingMargin = 10;

bool isComboList(const QWidget* widget) {
    return widget && widget->inherits("QComboBoxListView");
}

/// The frame round a list, a text browser, a writing paper or a pop-up.
void paintViewFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
    if (qobject_cast<const QPlainTextEdit*>(widget)) {
        const bool focus = option.state & QStyle::State_HasFocus;
        paintPanel(painter, option.rect, 4, colour::Paper, focus ? colour::LeafDeep : colour::Ctl, focus ? 1.8 : 1);
    } else if (widget && widget->inherits("QComboBoxPrivateContainer")) {
        paintPopup(option, painter);
    } else {
        paintPanel(painter, option.rect, 3, Qt::NoBrush, colour::Ctl);
    }
}

void markKeyboard(const QStyleOption& option, QPainter& painter, const Label& label) {
    constexpr Role Roomy[] = {Role::PageLabel, Role::ChosenLabel, Role::SignInButton, Role::Glyph};
    if (!(option.state & QStyle::State_HasFocus))
        return;
    const bool hasRoom = std::ranges::find(Roomy, label.role()) != std::end(Roomy);
    hasRoom ? paintKeyboardRing(painter, option.rect) : paintKeyboardLine(painter, option.rect);
}

void preparePaper(QPlainTextEdit& text, QObject* watcher) {
    text.setFont(sans(type::Long));
    text.document()->setDocumentMargin(WritingMargin);
    text.viewport()->setAutoFillBackground(false);
    text.viewport()->installEventFilter(watcher);
}

void prepareGrid(MSFlexGrid& grid) {
    for (QWidget* part : {grid.viewport(), grid.horizontalHeader()->viewport(), grid.verticalHeader()->viewport()})
        part->setAutoFillBackground(false);
    // Their corners let the page through.
    for (QWidget* bar : {grid.verticalScrollBar(), grid.horizontalScrollBar()})
        bar->setAttribute(Qt::WA_OpaquePaintEvent, false);
}

void prepareBox(QLineEdit& box, Role role, QObject* watcher) {
    box.setFont(fontFor(role));
    if (role == Role::CalcDisplay)
        box.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Role::CellEditor)
        return;
    // An amount is entered by the calculator alone; its box is disabled and still reads well.
    QPalette palette = box.palette();
    palette.setColor(QPalette::Disabled, QPalette::Text, colour::Ink);
    box.setPalette(palette);
    box.installEventFilter(watcher);
    fitEditor(box);
}

void prepareMessage(QWidget& box) {
    auto* words = box.findChild<QLabel*>(u"qt_msgbox_label"_s);
    if (!words)
        return;
    words->setFont(sans(type::Message));
    // A least height of its own takes the place of the one that the lines ask for.
    words->setMinimumHeight(std::max(MessageIcon, words->sizeHint().height()));
    words->setAlignment(Qt::AlignVCenter | Qt::AlignLeft);
}

} // namespace

Style::Style() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
    switch (static_cast<unsigned>(element)) {
    case PE_FormGround:
        return paintGround(*painter, *static_cast<const Form*>(widget));
    case PE_LedgerPaper:
        return paintLedgerPaper(*option, *painter, *static_cast<const MSFlexGrid*>(widget));
    case PE_GridEdge:
        return paintGridEdge(*painter, option->rect, option->state & State_HasFocus);
    case PE_KeyboardRing:
        return paintKeyboardRing(*painter, option->rect);
    case PE_PanelLineEdit:
        return paintField(*option, *painter, widget);
    case PE_Frame:
        return paintViewFrame(*option, *painter, widget);
    case PE_PanelMenu:
    case PE_PanelTipLabel:
        return paintPopup(*option, *painter);
    case PE_FrameMenu:
    case PE_FrameFocusRect:
        return;
    case PE_PanelItemViewRow:
    case PE_FrameStatusBarItem:
        if (qobject_cast<const MSFlexGrid*>(widget))
            return; // the paper has the bands
        break;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    const MSFlexGrid* grid = nullptr;
    switch (static_cast<unsigned>(element)) {
    case CE_Words:
        paintWords(*option, *painter, *static_cast<const Label*>(widget));
        return markKeyboard(*option, *painter, *static_cast<const Label*>(widget));
    case CE_Image:
        paintImage(*option, *painter, *static_cast<const Image*>(widget));
        return markKeyboard(*option, *painter, *static_cast<const Label*>(widget));
    case CE_PushButton:
        return paintButton(*button, *painter, widget);
    case CE_RadioButton:
        return paintOption(*button, *painter);
    case CE_CheckBox:
        return paintTick(*button, *painter);
    case CE_ComboBoxLabel:
        return paintComboWords(*qstyleoption_cast<const QStyleOptionComboBox*>(option), *painter);
    case CE_ProgressBar:
        return paintProgress(*qstyleoption_cast<const QStyleOptionProgressBar*>(option), *painter);
    case CE_MenuItem:
        return paintMenuLine(*qstyleoption_cast<const QStyleOptionMenuItem*>(option), *painter);
    case CE_MenuEmptyArea:
        return;
    case CE_Header:
        if ((grid = gridOf(widget)))
            return paintHeader(*qstyleoption_cast<const QStyleOptionHeader*>(option), *painter, *widget, *grid);
        break;
    case CE_HeaderEmptyArea:
        if ((grid = gridOf(widget)))
            return paintHeaderRest(*option, *painter, *widget, *grid);
        break;
    case CE_ItemViewItem:
        if ((grid = qobject_cast<const MSFlexGrid*>(widget)))
            return paintCell(*qstyleoption_cast<const QStyleOptionViewItem*>(option), *painter, *grid);
        if (isComboList(widget))
            return paintListLine(*qstyleoption_cast<const QStyleOptionViewItem*>(option), *painter);
        break;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* widget) const {
    switch (control) {
    case CC_GroupBox:
        return paintFrame(*option, *painter, widget);
    case CC_ComboBox:
        return paintCombo(*option, *painter);
    case CC_ScrollBar:
        return paintScrollBar(*qstyleoption_cast<const QStyleOptionSlider*>(option), *painter, widget);
    default:
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

QRect Style::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
    if (element == SE_LineEditContents)
        return fieldText(option->rect, widget);
    // The hand is over the whole of a box, so all of it can be clicked.
    if (element == SE_CheckBoxClickRect || element == SE_RadioButtonClickRect)
        return option->rect;
    if (element == SE_ItemViewItemText)
        if (const auto* grid = qobject_cast<const MSFlexGrid*>(widget))
            if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option))
                return cellTextRoom(item->rect, *grid, item->index.column() + 1);
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                            const QWidget* widget) const {
    if (control == CC_ComboBox) {
        const QRect box = option->rect;
        if (part == SC_ComboBoxEditField)
            return box.adjusted(4, 1, -ComboArrow, -1);
        if (part == SC_ComboBoxArrow)
            return box.adjusted(box.width() - ComboArrow, 0, 0, 0);
        return box;
    }
    if (control == CC_ScrollBar)
        if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option))
            return scrollPart(*slider, part, widget);
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                              const QWidget* widget) const {
    if (type == CT_MenuItem)
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
            return menuLineSize(*item);
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_PushButton && widget && qobject_cast<const QDialogButtonBox*>(widget->parentWidget()))
        return size.expandedTo(MessageButton);
    if (type == CT_ItemViewItem && isComboList(widget))
        return {size.width() + 8, ListLine};
    return size;
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_ScrollBarExtent:
        return ScrollBarWidth;
    case PM_MessageBoxIconSize:
        return MessageIcon;
    case PM_DefaultFrameWidth:
        return qobject_cast<const QPlainTextEdit*>(widget) ? 2 : 1;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_MenuPanelWidth:
        return 1;
    case PM_MenuVMargin:
        return 3;
    case PM_MenuHMargin:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* data) const {
    switch (static_cast<unsigned>(hint)) {
    case SH_CellFit:
        return static_cast<int>(
            cellFit(*qstyleoption_cast<const QStyleOptionViewItem*>(option), *static_cast<const MSFlexGrid*>(widget)));
    case SH_ComboBox_Popup: // the list opens below its box
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_EtchDisabledText:
    case SH_UnderlineShortcut:
    case SH_Widget_Animation_Duration:
        return 0;
    case SH_DialogButtonLayout:
        return QDialogButtonBox::WinLayout;
    case SH_LineEdit_PasswordCharacter:
        return '*';
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

QIcon Style::standardIcon(StandardPixmap standard, const QStyleOption* option, const QWidget* widget) const {
    const QIcon icon = messageIcon(standard);
    return icon.isNull() ? QProxyStyle::standardIcon(standard, option, widget) : icon;
}

QPalette Style::standardPalette() const {
    return programPalette();
}

void Style::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (auto* grid = qobject_cast<MSFlexGrid*>(widget))
        prepareGrid(*grid);
    else if (auto* text = qobject_cast<QPlainTextEdit*>(widget))
        preparePaper(*text, this);
    else if (widget->inherits("QMessageBox"))
        prepareMessage(*widget);
    else if (auto* box = qobject_cast<QLineEdit*>(widget))
        if (const Placed* placed = Placed::of(widget))
            prepareBox(*box, placed->role(), this);
}

bool Style::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint) {
        if (auto* text = qobject_cast<QPlainTextEdit*>(watched->parent()))
            paintWritingPaper(*text);
        else if (auto* box = qobject_cast<QLineEdit*>(watched))
            fitEditor(*box); // to what has been typed
    } else if (event->type() == QEvent::Move || event->type() == QEvent::Resize || event->type() == QEvent::Show) {
        if (auto* box = qobject_cast<QLineEdit*>(watched))
            fitEditor(*box);
    }
    return QProxyStyle::eventFilter(watched, event);
}

} // namespace qinghe
