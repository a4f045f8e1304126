#pragma once

#include <QSize>

class QPainter;
class QStyleOption;
class QStyleOptionMenuItem;
class QStyleOptionViewItem;

namespace qinghe {

/// A line of the list that a combo box opens.
void paintListLine(const QStyleOptionViewItem& option, QPainter& painter);

void paintMenuLine(const QStyleOptionMenuItem& option, QPainter& painter);
QSize menuLineSize(const QStyleOptionMenuItem& option);

/// The ground and edge of what pops up: lists, menus, tool tips.
void paintPopup(const QStyleOption& option, QPainter& painter);

} // namespace qinghe
