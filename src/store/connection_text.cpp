#include "store/connection_text.h"

#include "runtime/runtime_error.h"
#include "store/data_file.h"

#include <QDir>
#include <QFileInfo>

namespace qinghe {

namespace {

constexpr QStringView kProvider = u"microsoft.jet.oledb.4.0";
constexpr QStringView kSourceMark = u"data source=";

/// "provider = name;", blanks anywhere between the parts.
bool namesProvider(QStringView head) {
    const qsizetype equals = head.indexOf(u'=');
    const qsizetype end = head.indexOf(u';');
    return equals >= 0 && end > equals && head.first(equals).trimmed().compare(u"provider", Qt::CaseInsensitive) == 0 &&
           head.sliced(equals + 1, end - equals - 1).trimmed().compare(kProvider, Qt::CaseInsensitive) == 0;
}

} // namespace

QString programFile(const QString& appPath, const QString& name) {
    return appPath.endsWith(u'\\') ? appPath + name : appPath + u'\\' + name;
}

QString connectionText(const QString& appPath, bool trailingBlank) {
    const QString text =
        QStringLiteral("provider = %1;%2").arg(kProvider, kSourceMark) + programFile(appPath, DataFileName.toString());
    return trailingBlank ? text + u' ' : text;
}

QString dataSource(const QString& connectionText) {
    const qsizetype mark = connectionText.indexOf(kSourceMark, 0, Qt::CaseInsensitive);
    QString path = mark < 0 ? QString() : connectionText.mid(mark + kSourceMark.size());
    while (path.endsWith(u' '))
        path.chop(1);
    if (path.isEmpty() || !namesProvider(QStringView(connectionText).first(mark)))
        throw RuntimeError(RuntimeError::ProviderUnknown,
                           QStringLiteral("连接文字没有指明账本文件：%1").arg(connectionText));
    return path;
}

QString systemPath(const QString& path) {
    const qsizetype last = path.lastIndexOf(u'\\');
    if (QDir::separator() == u'\\' || last <= path.lastIndexOf(u'/') || QFileInfo::exists(path))
        return path;
    const QString name = u'/' + path.sliced(last + 1);
    const QString outside = path.first(last) + name, inside = path.first(last + 1) + name;
    return !QFileInfo::exists(outside) && QFileInfo::exists(inside) ? inside : outside;
}

QString systemPath(const QString& path, const QString& inUse) {
    const QFileInfo used(inUse);
    return !inUse.isEmpty() && programFile(used.path(), used.fileName()) == path ? inUse : systemPath(path);
}

} // namespace qinghe
