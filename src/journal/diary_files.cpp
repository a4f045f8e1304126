#include "journal/diary_files.h"

#include "disk/replace_file.h"
#include "platform/files.h"
#include "runtime/runtime_error.h"
#include "runtime/shown_value.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <algorithm>
#include <array>

namespace qinghe::diary {

using namespace Qt::StringLiterals;

namespace {

constexpr auto TextCodec = "GB18030";
const QString Extension = u".dll"_s;
constexpr qsizetype LongestName = 255; ///< bytes, the extension included

constexpr char LoneEuro = '\x80'; ///< in files of the 8-bit age

bool isReserved(const QString& title) {
    static constexpr std::array<QStringView, 4> Devices{u"CON", u"PRN", u"AUX", u"NUL"};
    static constexpr std::array<QStringView, 2> Ports{u"COM", u"LPT"};
    const QString name = title.section(u'.', 0, 0).trimmed().toUpper();
    const bool isPort = name.size() == 4 && std::ranges::find(Ports, QStringView(name).first(3)) != Ports.end() &&
                        name[3] >= u'1' && name[3] <= u'9';
    return isPort || std::ranges::find(Devices, name) != Devices.end();
}

/// How many bytes stand together: the first byte of a pair takes the second one with it, and a character of four bytes
/// is two pairs.
qsizetype pairLength(char firstByte) {
    const auto first = static_cast<uchar>(firstByte);
    return first > 0x80 && first < 0xFF ? 2 : 1;
}

QString decoded(QByteArrayView bytes) {
    QStringDecoder decode(TextCodec);
    QString text;
    qsizetype from = 0;
    for (qsizetype at = 0; at < bytes.size(); at += pairLength(bytes[at])) {
        if (bytes[at] != LoneEuro)
            continue;
        text += decode(bytes.sliced(from, at - from));
        text += u'€';
        from = at + 1;
    }
    return text + QString(decode(bytes.sliced(from)));
}

} // namespace

QString objection(const QString& title) {
    const auto isKept = [](QChar c) { return c < u' ' || QStringView(u"/\\:*?\"<>|").contains(c); };
    if (title == u"."_s || title == u".."_s)
        return u"它是文件夹的记号"_s;
    if (std::ranges::any_of(title, isKept) || !title.isValidUtf16())
        return u"里面不能有 / \\ : * ? \" < > | 和控制字符"_s;
    if (isReserved(title))
        return u"它是系统设备的名称"_s;
    if ((title + Extension).toUtf8().size() > LongestName)
        return u"它太长了"_s;
    return {};
}

QString filePath(const QString& folder, const QString& title) {
    if (const QString why = objection(title); !why.isEmpty())
        throw RuntimeError(
            RuntimeError::PathFileAccess,
            u"日记标题“%1”不能用作文件名：%2。正文没有文件可存，请换一个标题。"_s.arg(shownValue(title), why));
    return folder + u'/' + title + Extension;
}

void write(const QString& path, const QString& text) {
    QStringEncoder encode(TextCodec);
    const QByteArray bytes = encode(text + u"\r\n"_s);
    replaceFile(path, bytes);
}

QString readLines(const QString& path) {
    QString text = decoded(files::readAll(path));
    text.removeIf([](QChar c) { return c == u'\r' || c == u'\n'; });
    return text;
}

} // namespace qinghe::diary
