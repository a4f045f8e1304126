#include "platform/display.h"

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

QtMessageHandler usual = nullptr;
QStringList noted; ///< what the display's plugin has said so far

QString whatIsMissing() {
    const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM"), display = qEnvironmentVariable("DISPLAY");
    if (!platform.isEmpty())
        return u"按 QT_QPA_PLATFORM=%1 打不开窗口。"_s.arg(platform);
    if (display.isEmpty())
        return u"找不到 X 显示：环境变量 DISPLAY 没有设置。"_s;
    return u"连不上 X 显示 %1。"_s.arg(display);
}

void passOnNoted() {
    for (const QString& line : std::exchange(noted, {}))
        std::fputs((u"    "_s + line + u'\n').toUtf8().constData(), stderr);
    std::fflush(stderr);
}

[[noreturn]] void endWithoutDisplay() {
    const QString text = u"青禾家庭记账本不能启动：%1\n"
                         "请在图形桌面里启动程序。Wayland 桌面要安装并启用 XWayland；用 SSH 登录时请用 ssh -X。"
                         "没有显示器的机器可以另开一个虚拟屏幕（例如 VNC 服务器）。\n"_s;
    std::fputs(text.arg(whatIsMissing()).toUtf8().constData(), stderr);
    passOnNoted();
    std::_Exit(1);
}

/// Qt ends a process without a display by a core dump; its last message is the place to do better.
void listen(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg)
        endWithoutDisplay();
    if (QByteArrayView(context.category).startsWith("qt.qpa"))
        noted << text;
    else if (usual)
        usual(type, context, text);
}

} // namespace

ApplicationArguments::ApplicationArguments(int argc, char** argv) : m_values(argv, argv + argc) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && argc > 0) {
        // Before the user's own, of which the last one counts. A variable would go on to the browser that is started
        // from here.
        static char platform[] = "-platform", x[] = "xcb";
        m_values.insert(m_values.begin() + 1, {platform, x});
    }
    m_count = static_cast<int>(m_values.size());
    m_values.push_back(nullptr);
}

DisplayWatch::DisplayWatch() {
    usual = qInstallMessageHandler(listen);
}

DisplayWatch::~DisplayWatch() {
    qInstallMessageHandler(usual);
    passOnNoted();
}

} // namespace qinghe
