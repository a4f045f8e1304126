#include "controls/text_menu.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

/// What can be done with the text of a box at the moment.
struct Possible {
    bool undo, cut, copy, paste;
};

bool clipboardHasText() {
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    return content && content->hasText();
}

Possible possible(const QLineEdit& box) {
    const bool writes = !box.isReadOnly();
    const bool copies = box.hasSelectedText() && box.echoMode() == QLineEdit::Normal; // a password stays where it is
    return {writes && box.isUndoAvailable(), writes && copies, copies, writes && clipboardHasText()};
}

Possible possible(const QPlainTextEdit& box) {
    const bool writes = !box.isReadOnly(), selected = box.textCursor().hasSelection();
    return {writes && box.document()->isUndoAvailable(), writes && selected, selected, writes && clipboardHasText()};
}

template<class Box>
void show(Box& box, const QPoint& at) {
    const Possible can = possible(box);
    auto* menu = new QMenu(&box);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto line = [&](const QString& words, bool usable, auto act) {
        menu->addAction(words, &box, act)->setEnabled(usable);
    };
    line(u"撤销"_s, can.undo, &Box::undo);
    line(u"剪切"_s, can.cut, &Box::cut);
    line(u"复制"_s, can.copy, &Box::copy);
    line(u"粘贴"_s, can.paste, &Box::paste);
    line(u"全选"_s, true, &Box::selectAll);
    menu->popup(box.mapToGlobal(at));
}

template<class Box>
void offer(Box& box) {
    box.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&box, &QWidget::customContextMenuRequested, &box, [&box](const QPoint& at) { show(box, at); });
}

} // namespace

void offerTextMenu(QLineEdit& box) {
    offer(box);
}

void offerTextMenu(QPlainTextEdit& box) {
    offer(box);
}

} // namespace qinghe
