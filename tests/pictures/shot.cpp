#include "shot.h"

#include <QDir>
#include <QProcess>

#include <cmath>
#include <optional>

namespace pictures {

namespace {

/// The window with its frame, in pixels of the screen.
QRect frameOf(whole::Program& program, const std::string& window) {
    const QJsonValue frame = program.get(window, "frameGeometry"), inner = program.get(window, "geometry");
    const double scale = double(program.place(window).width()) / inner[2].toInt();
    const QRectF units(frame[0].toInt(), frame[1].toInt(), frame[2].toInt(), frame[3].toInt());
    return QRectF(units.topLeft() * scale, units.size() * scale).toAlignedRect();
}

QRect placeOf(whole::Program& program, const Scene& scene) {
    if (!scene.cut.empty())
        return frameOf(program, scene.cut);
    QRect all;
    for (const std::string& window : program.windows())
        all |= frameOf(program, window);
    return all;
}

/// What a window manager does that asks nobody for the size of a window.
void force(whole::Display& display, const QSize& size) {
    display.leaveWindowsAlone();
    QProcess::execute(QStringLiteral("xdotool"),
                      {"search", "--onlyvisible", "--name", "青禾家庭记账本", "windowmove", "0", "0", "windowsize",
                       QString::number(size.width()), QString::number(size.height())});
}

} // namespace

QImage shot(whole::Display& display, const Look& look, const Scene& scene, bool committed) {
    std::optional<whole::LedgerFolder> made;
    const whole::LedgerFolder& folder =
        committed ? made.emplace(QDir::tempPath() + QStringLiteral("/王青")) : made.emplace();
    const Dressed dressed(look, folder);
    if (scene.ready)
        scene.ready(folder);
    whole::Program program(folder, "2024-11-18 20:36:08", whole::Program::Clock::Stands);
    scene.play(program);
    if (!look.forced.isEmpty())
        force(display, look.forced);
    program.look();
    const QString screen = folder.beside("screen.png");
    program.picture(screen.toStdString());
    return QImage(screen).copy(placeOf(program, scene));
}

void save(const QImage& picture, const QString& file) {
    QDir().mkpath(file.section(u'/', 0, -2));
    if (!picture.save(file, "PNG"))
        throw std::runtime_error("cannot write " + file.toStdString());
    QProcess::execute(QStringLiteral("pngquant"),
                      {"128", "--nofs", "--force", "--skip-if-larger", "--strip", "--output", file, "--", file});
}

bool showTheSame(const QImage& one, const QImage& other) {
    constexpr int Seen = 60;  // of 255, in one of the three colours
    constexpr int Most = 100; // pixels: more than a text cursor has, fewer than a word
    if (one.size() != other.size())
        return false;
    int different = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y), b = other.pixel(x, y);
            different += std::abs(qRed(a) - qRed(b)) > Seen || std::abs(qGreen(a) - qGreen(b)) > Seen ||
                         std::abs(qBlue(a) - qBlue(b)) > Seen;
        }
    return different <= Most;
}

} // namespace pictures
