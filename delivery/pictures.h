#pragma once

#include <QByteArray>
#include <QSize>
#include <QStringView>

#include <span>

class QPainter;

namespace qinghe {

/// A picture that ships in the data file: its name there, and how it is drawn in a scene of `scene` pixels at 100 %.
struct Picture {
    QStringView name;
    QSize scene;
    void (*paint)(QPainter& painter);
};

/// The skins on offer, in the order of the list. The first one is the chosen one.
std::span<const Picture> skins();
/// What lies on the desktop page below the figures: cards, row words, month headings.
const Picture& desktopPicture();
/// The ground of the sign-in window.
const Picture& signInPicture();

/// Draws the picture for screens of twice the density. Needs a QGuiApplication, for its fonts.
QByteArray jpegOf(const Picture& picture);

void paintMorningField(QPainter& painter); ///< the field of 青禾 alone, without birds and without its lowest seedlings
void paintQinghe(QPainter& painter);       ///< 青禾: a planted field in the morning
void paintDawn(QPainter& painter);         ///< 水田晨曦: terraces under water at sunrise
void paintInk(QPainter& painter);          ///< 水墨远山: far mountains in ink
void paintRicePaper(QPainter& painter);    ///< 暖纸稻香: ears of rice on ruled paper
void paintDesktop(QPainter& painter);
void paintSignIn(QPainter& painter);

} // namespace qinghe
