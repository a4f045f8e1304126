#pragma once

#include "looks.h"
#include "scenes.h"
#include "whole/display.h"

#include <QImage>

namespace pictures {

/// Starts a program of that look, plays the scene and takes its picture off the screen. The committed pictures are the
/// same in every run: their folder has a name of its own, and the clock stands in all of them.
QImage shot(whole::Display& display, const Look& look, const Scene& scene, bool committed);

/// With fewer colours, as far as nobody sees it: a third of the bytes.
void save(const QImage& picture, const QString& file);

/// Whether two pictures show the same, but for the colours that saving takes away and for a text cursor.
bool showTheSame(const QImage& one, const QImage& other);

} // namespace pictures
