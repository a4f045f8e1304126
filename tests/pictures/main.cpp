#include "shot.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <memory>

using namespace pictures;

namespace {

/// What is asked for.
struct Order {
    QDir into;
    bool all = false;   ///< every scene in every look, not the committed ones alone
    bool check = false; ///< say which of the committed ones show what is no more, and change none
    std::vector<std::string> scenes, looks;
};

bool wants(const std::vector<std::string>& named, const std::string& name) {
    return named.empty() || std::ranges::find(named, name) != named.end();
}

QString fileFor(const Order& order, const Look& look, const Scene& scene) {
    const std::string name = order.all ? look.name + '/' + scene.name + ".png" : scene.page;
    return order.into.filePath(QString::fromStdString(name));
}

void carryOut(const Order& order, whole::Display& display, const Look& look, const Scene& scene) {
    const QImage picture = shot(display, look, scene, !order.all);
    const QString file = fileFor(order, look, scene);
    if (!order.check)
        save(picture, file);
    else if (!showTheSame(picture, QImage(file)))
        throw std::runtime_error("is no more what " + scene.page + " shows; renew it: docs/pictures/make --scene " +
                                 scene.name);
}

std::vector<const Look*> looksFor(const Order& order) {
    std::vector<const Look*> wanted;
    for (const Look& look : looks())
        if (order.all ? wants(order.looks, look.name) : wanted.empty())
            wanted.push_back(&look);
    return wanted;
}

/// Takes the pictures and counts those that fail.
int carryOut(const Order& order) {
    int failed = 0;
    std::unique_ptr<whole::Display> display;
    for (const Look* look : looksFor(order)) {
        display.reset();
        for (const Scene& scene : scenes()) {
            if (!wants(order.scenes, scene.name) || (!order.all && scene.page.empty()))
                continue;
            try {
                if (!display || !look->forced.isEmpty()) { // one without its window manager is of no more use
                    display.reset();
                    display = std::make_unique<whole::Display>(look->screen);
                }
                carryOut(order, *display, *look, scene);
            } catch (const std::exception& error) {
                ++failed;
                std::fprintf(stderr, "%s, %s: %s\n", look->name.c_str(), scene.name.c_str(), error.what());
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
    const QCommandLineOption check("check", "Says which committed pictures show what is no more, and changes none.");
    parser.setApplicationDescription(
        "Takes pictures of the running program. Without --all it renews the committed ones.");
    parser.addHelpOption();
    parser.addOptions({all, check, scene, look});
    parser.process(application);
    const bool each = parser.isSet(all);
    return {.into = each ? parser.value(all) : QStringLiteral(QINGHE_PICTURES),
            .all = each,
            .check = parser.isSet(check) && !each,
            .scenes = named(parser.values(scene)),
            .looks = named(parser.values(look))};
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const int failed = carryOut(orderFrom(application));
    // The steps that the stories share expect something.
    return failed == 0 && !testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed() ? 0 : 1;
}
