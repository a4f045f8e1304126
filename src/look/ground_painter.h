#pragma once

class QPainter;
class QWidget;

namespace qinghe {

class Form;

/// The ground of a form, by its kind.
void paintGround(QPainter& painter, const Form& form);

/// Whether the window that holds a control wears a dark picture.
bool onDarkPicture(const QWidget& control);

} // namespace qinghe
