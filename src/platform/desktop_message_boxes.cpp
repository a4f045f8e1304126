#include "platform/desktop_message_boxes.h"

#include "platform/front_window.h"
#include "runtime/shown_value.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QMessageBox>

#include <algorithm>
#include <utility>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

QMessageBox::StandardButtons buttonsOf(MessageStyle style) {
    switch (static_cast<int>(style) & 0xF) {
    case 1:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case 4:
        return QMessageBox::Yes | QMessageBox::No;
    default:
        return QMessageBox::Ok;
    }
}

QMessageBox::Icon iconOf(MessageStyle style) {
    switch (static_cast<int>(style) & 0xF0) {
    case 32:
        return QMessageBox::Question;
    case 48:
        return QMessageBox::Warning;
    case 64:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

struct ButtonWords {
    QMessageBox::StandardButton kind;
    QStringView caption;
    Qt::Key letter;
};

/// The words of the buttons, without the marks for keys that Qt's own words carry: the letter that presses a button, by
/// itself as well as with Alt, is told in its tool tip.
void captionButtons(QMessageBox& box) {
    constexpr ButtonWords Words[] = {{QMessageBox::Ok, u"确定", Qt::Key_O},
                                     {QMessageBox::Cancel, u"取消", Qt::Key_C},
                                     {QMessageBox::Yes, u"是", Qt::Key_Y},
                                     {QMessageBox::No, u"否", Qt::Key_N}};
    for (const ButtonWords& words : Words)
        if (QAbstractButton* button = box.button(words.kind)) {
            button->setText(words.caption.toString());
            button->setShortcut(Qt::ALT | words.letter);
            button->setToolTip(u"%1（%2）"_s.arg(words.caption, QChar(words.letter)));
        }
}

Answer answerOf(int button) {
    switch (button) {
    case QMessageBox::Ok:
        return Answer::Ok;
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

/// The text as far as it has room on every screen; the words of this program are far shorter than that. What has no
/// blanks may be broken anywhere.
QString fitting(const QString& text) {
    constexpr qsizetype LongestText = 500, MostLines = 24, LongestWord = 60; // characters, lines
    qsizetype end = -1;
    for (qsizetype line = 0; line < MostLines && (line == 0 || end >= 0); ++line)
        end = text.indexOf(u'\n', end + 1);
    const QString shown = shownValue(text, end < 0 ? LongestText : std::min(end, LongestText));
    QString fitted;
    qsizetype word = 0;
    for (const QChar c : shown) {
        word = c.isSpace() || c.script() == QChar::Script_Han ? 0 : word + 1;
        if (word > LongestWord && !c.isLowSurrogate()) {
            fitted += QChar(0x200B); // a blank without a width
            word = 1;
        }
        fitted += c;
    }
    return fitted;
}

/// Wide enough for its title and what the desktop puts beside it; without an icon its words begin at the margin.
void lay(QMessageBox& box) {
    constexpr int BesideTitle = 110; // pixels: the window's icon, its button, their margins
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (!grid)
        return;
    if (QLayoutItem* indent = grid->itemAtPosition(0, 0); indent && indent->spacerItem())
        indent->spacerItem()->changeSize(0, 0);
    grid->setColumnStretch(grid->columnCount() - 1, 1); // that of the words
    const int title = QFontMetrics(box.font()).horizontalAdvance(box.windowTitle());
    grid->addItem(new QSpacerItem(title + BesideTitle, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

/// A box over all windows, whose texts are plain text, titled with the program's name when it has no title of its own.
void fill(QMessageBox& box, const QString& text, const QString& title) {
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setWindowTitle(title.isEmpty() ? productName() : title);
    bringOverNotices(box);
}

} // namespace

Answer DesktopMessageBoxes::show(const QString& text, MessageStyle style, const QString& title) {
    QMessageBox box(windowInFront());
    fill(box, fitting(text), title);
    box.setIcon(iconOf(style));
    box.setStandardButtons(buttonsOf(style));
    captionButtons(box);
    lay(box);
    standClear(box);
    return answerOf(box.exec());
}

void DesktopMessageBoxes::showError(int number, const QString& text, const QString& became) {
    QMessageBox box(windowInFront());
    fill(box, u"运行时错误 %1：\n\n%2\n\n程序将关闭。%3"_s.arg(number).arg(fitting(text), fitting(became)),
         productName());
    box.setIcon(QMessageBox::Warning);
    box.setStandardButtons(QMessageBox::Ok);
    captionButtons(box);
    lay(box);
    box.exec();
}

} // namespace qinghe
