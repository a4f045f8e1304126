#include "looks.h"

#include "books.h"
#include "photograph.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>

namespace pictures {

namespace {

/// The colours of a dark desktop, in the file where Qt finds those of one of the two large ones.
constexpr char DarkColours[] = R"([Colors:View]
BackgroundNormal=27,30,32
BackgroundAlternate=35,38,41
ForegroundNormal=252,252,252
ForegroundLink=29,153,243
ForegroundVisited=155,89,182
[Colors:Window]
BackgroundNormal=42,46,50
ForegroundNormal=252,252,252
[Colors:Button]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
[Colors:Selection]
BackgroundNormal=61,174,233
ForegroundNormal=252,252,252
[Colors:Tooltip]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
)";

void write(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(path.section(u'/', 0, -2));
    QFile file(path);
    file.open(QFile::WriteOnly);
    file.write(bytes);
}

QByteArray withoutFonts(const std::vector<QString>& patterns) {
    QByteArray rejected;
    for (const QString& pattern : patterns)
        rejected += "<glob>" + pattern.toUtf8() + "</glob>";
    return R"(<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig><include>/etc/fonts/fonts.conf</include>)"
           "<selectfont><rejectfont>" +
           rejected + "</rejectfont></selectfont></fontconfig>";
}

void chooseSkin(const whole::LedgerFolder& folder, const std::string& name) {
    if (name == "photo" || name == "twigs") {
        const QByteArray jpeg = name == "photo" ? photograph() : twigs();
        folder.execute("update 皮肤选择 set 皮肤名 = '照片', 文件大小 = " + std::to_string(jpeg.size()) +
                       ", 皮肤文件 = x'" + jpeg.toHex().toStdString() + "00'");
    } else if (!name.empty()) {
        folder.execute(
            "delete from 皮肤选择; insert into 皮肤选择 select 名称, 大小, 皮肤 from 软件皮肤 where 名称 = '" + name +
            "'");
    }
}

} // namespace

std::span<const Look> looks() {
    static const QString laptop = QStringLiteral("1366x768"), large = QStringLiteral("2880x2000");
    static const std::array all{
        Look{.name = "plain"},
        Look{.name = "125", .scale = "1.25"},
        Look{.name = "150", .scale = "1.5"},
        Look{.name = "200", .scale = "2", .screen = large},
        Look{.name = "laptop", .screen = laptop},
        Look{.name = "laptop-150", .scale = "1.5", .screen = laptop},
        Look{.name = "dark", .dark = true},
        Look{.name = "dark-150", .scale = "1.5", .dark = true},
        Look{.name = "dawn", .skin = "水田晨曦"},
        Look{.name = "ink", .skin = "水墨远山"},
        Look{.name = "paper", .skin = "暖纸稻香"},
        Look{.name = "photo", .skin = "photo"},
        Look{.name = "twigs", .skin = "twigs"},
        Look{.name = "photo-200", .skin = "photo", .scale = "2", .screen = large},
        Look{.name = "empty", .book = "empty"},
        Look{.name = "ten", .book = "ten"},
        Look{.name = "full", .book = "full"},
        Look{.name = "long", .book = "long"},
        Look{.name = "long-150", .book = "long", .scale = "1.5"},
        Look{.name = "short", .book = "short"},
        Look{.name = "other-fonts", .hidden = {QStringLiteral("*/wqy-microhei*"), QStringLiteral("*/uming*")}},
        Look{.name = "other-fonts-150",
             .scale = "1.5",
             .hidden = {QStringLiteral("*/wqy-microhei*"), QStringLiteral("*/uming*")}},
        Look{.name = "fonts-without-noto", .hidden = {QStringLiteral("*/noto/*"), QStringLiteral("*/Noto*")}},
        Look{.name = "filling", .forced = {1600, 900}},
        Look{.name = "smaller", .forced = {620, 420}},
    };
    return all;
}

Dressed::Dressed(const Look& look, const whole::LedgerFolder& folder) {
    const auto book = std::ranges::find(books(), look.book, &Book::name);
    book->write(folder);
    chooseSkin(folder, look.skin);
    set("QT_SCALE_FACTOR", look.scale);
    if (look.dark) {
        set("XDG_CURRENT_DESKTOP", "KDE");
        set("KDE_SESSION_VERSION", "5");
        write(folder.beside("home/.config/kdeglobals"), DarkColours);
    }
    if (!look.hidden.empty()) {
        write(folder.beside("fonts.conf"), withoutFonts(look.hidden));
        set("FONTCONFIG_FILE", folder.beside("fonts.conf").toUtf8());
    }
}

Dressed::~Dressed() {
    for (const auto& [name, value] : m_before)
        value.isNull() ? qunsetenv(name) : qputenv(name, value);
}

void Dressed::set(const char* name, const QByteArray& value) {
    m_before.emplace_back(name, qEnvironmentVariableIsSet(name) ? qgetenv(name) : QByteArray());
    qputenv(name, value);
}

} // namespace pictures
