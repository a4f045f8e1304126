#include "looks.h"
#include "scenes.h"
#include "whole/display.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <memory>

using namespace pictures;

namespace {

/// What is asked for.
struct Order {
    QDir into;
    bool all = false; ///< every scene in every look, not the committed ones alone
    std::vector<std::string> scenes, looks;
};

bool wants(const std::vector<std::string>& named, const std::string& name) {
    return named.empty() || std::ranges::find(named, name) != named.end();
}

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

/// Fewer colours, as far as nobody sees it: a third of the bytes.
void makeSmall(const QString& file) {
    QProcess::execute(QStringLiteral("pngquant"),
                      {"--force", "--skip-if-larger", "--strip", "--output", file, "--", file});
}

void take(whole::Display& display, const Look& look, const Scene& scene, const QString& file) {
    const whole::LedgerFolder folder;
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
    QDir().mkpath(file.section(u'/', 0, -2));
    if (!QImage(screen).copy(placeOf(program, scene)).save(file, "PNG"))
        throw std::runtime_error("cannot write " + file.toStdString());
    makeSmall(file);
}

QString fileFor(const Order& order, const Look& look, const Scene& scene) {
    const std::string name = order.all ? look.name + '/' + scene.name + ".png" : scene.page;
    return order.into.filePath(QString::fromStdString(name));
}

/// Takes the pictures and counts those that fail.
int carryOut(const Order& order) {
    int failed = 0;
    std::unique_ptr<whole::Display> display;
    QString screen;
    for (const Look& look : looks()) {
        if (order.all ? !wants(order.looks, look.name) : &look != &looks().front())
            continue;
        for (const Scene& scene : scenes()) {
            if (!wants(order.scenes, scene.name) || (!order.all && scene.page.empty()))
                continue;
            try {
                if (!display || screen != look.screen || !look.forced.isEmpty()) {
                    display.reset();
                    display = std::make_unique<whole::Display>(screen = look.screen);
                }
                take(*display, look, scene, fileFor(order, look, scene));
            } catch (const std::exception& error) {
                ++failed;
                std::fprintf(stderr, "%s, %s: %s\n", look.name.c_str(), scene.name.c_str(), error.what());
            }
        }
    }
    return failed;
}

std::vector<std::string> named(const QStringList& names) {
    std::vector<std::string> plain;
    for (const QString& name : names)
        plain.push_back(name.toStdString());
    return plain;
}

Order orderFrom(const QCoreApplication& application) {
    QCommandLineParser parser;
    const QCommandLineOption all("all", "Every scene in every look, as FOLDER/LOOK/SCENE.png.", "folder");
    const QCommandLineOption scene("scene", "This scene; may be given more than once.", "name");
    const QCommandLineOption look("look", "With --all: this look; may be given more than once.", "name");
    parser.setApplicationDescription(
        "Takes pictures of the running program. Without --all it renews the committed ones.");
    parser.addHelpOption();
    parser.addOptions({all, scene, look});
    parser.process(application);
    return {parser.isSet(all) ? parser.value(all) : QStringLiteral(QINGHE_PICTURES), parser.isSet(all),
            named(parser.values(scene)), named(parser.values(look))};
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const int failed = carryOut(orderFrom(application));
    // The steps that the stories share expect something.
    return failed == 0 && !testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed() ? 0 : 1;
}
