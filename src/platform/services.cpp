#include "platform/services.h"

#include "platform/background_sound.h"
#include "platform/background_work.h"
#include "platform/desktop_file_chooser.h"
#include "platform/desktop_launcher.h"
#include "platform/desktop_message_boxes.h"
#include "platform/desktop_tray.h"
#include "platform/handlers.h"
#include "platform/instance_lock.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

class DesktopClock : public Clock {
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};

class DesktopProcess : public Process {
public:
    void end(int code) override {
        std::fflush(nullptr);
        std::_Exit(code);
    }
};

} // namespace

QString productName() {
    return u"青禾家庭记账本"_s;
}

Answer Services::say(const QString& text, MessageStyle style, const QString& title) const {
    handlers::boundary();
    return messages->show(text, style, title);
}

Services desktopServices(const QString& bookFolder) {
    Services services;
    services.appPath = bookFolder;
    services.clock = std::make_unique<DesktopClock>();
    services.messages = std::make_unique<DesktopMessageBoxes>();
    services.chooser = std::make_unique<DesktopFileChooser>();
    services.tray = std::make_unique<DesktopTray>();
    services.launcher = std::make_unique<DesktopLauncher>();
    services.sound = backgroundSound(QCoreApplication::applicationDirPath());
    services.instance = folderLock(services.appPath);
    services.background = backgroundWork();
    services.process = std::make_unique<DesktopProcess>();
    return services;
}

} // namespace qinghe
