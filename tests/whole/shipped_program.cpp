#include "started.h"

#include <QDir>
#include <QProcess>

#include <gtest/gtest.h>

using namespace whole;

namespace {

/// What the system's own tool tells of a file of the program.
std::string headersOf(const QString& file) {
    QProcess process;
    process.start(QStringLiteral("readelf"), {QStringLiteral("-hldW"), QStringLiteral("--dyn-syms"), file});
    process.waitForFinished();
    return process.readAllStandardOutput().toStdString();
}

bool holds(const std::string& text, const std::string& word) {
    return text.find(word) != std::string::npos;
}

} // namespace

TEST(ShippedProgram, IsHardenedAsTheSystemsOwnPackagesAre) {
    const LedgerFolder folder;
    for (const char* const name : {"qinghe", "qinghe_charts.so", "qinghe_sound.so"}) {
        const std::string headers = headersOf(folder.programFile(name));
        EXPECT_TRUE(holds(headers, "DYN ")) << name << " lies at a place of chance";
        EXPECT_TRUE(holds(headers, "GNU_RELRO")) << name;
        EXPECT_TRUE(holds(headers, "NOW")) << name << " binds its names before it runs";
        EXPECT_TRUE(holds(headers, "__stack_chk_fail")) << name;
    }
    EXPECT_TRUE(holds(headersOf(folder.programFile("qinghe")), "glibcxx_assert_fail"));
}

TEST(ShippedProgram, TakesNoPluginFromTheFolderThatItLiesIn) {
    const LedgerFolder folder;
    QDir(folder.path()).mkpath(QStringLiteral("platforms"));
    QDir(folder.path()).mkpath(QStringLiteral("planted/platforms"));
    folder.write("qt.conf", "[Paths]\nPlugins=" + folder.path().toUtf8() + "/planted\n");
    const Ended ended = started(folder, {{QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("nowhere")},
                                         {QStringLiteral("QT_DEBUG_PLUGINS"), QStringLiteral("1")}});
    EXPECT_EQ(ended.code, 1);
    EXPECT_TRUE(holds(ended.words, "checking directory path")) << ended.words;
    for (const char* const place : {"platforms", "planted"})
        EXPECT_FALSE(holds(ended.words, folder.file(place).toStdString())) << ended.words;
}

// The fonts' library reads the environment on a thread of its own; on a screen that is too small the program puts its
// scale there and makes its application once more.
TEST(ShippedProgram, WritesNoEnvironmentWhileTheFontsAreRead) {
    const LedgerFolder folder;
    for (const QString& scale : {QStringLiteral("1"), QStringLiteral("3")})
        EXPECT_EQ(started(folder, {{QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb")},
                                   {QStringLiteral("QT_SCALE_FACTOR"), scale},
                                   {QStringLiteral("LD_PRELOAD"), QStringLiteral(QINGHE_FONTS_WATCH)}})
                      .code,
                  0)
            << "scale " << scale.toStdString();
}
