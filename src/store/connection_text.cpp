#include "store/connection_text.h"

#include "runtime/runtime_error.h"
#include "store/data_file.h"

#include <QDir>
#include <QFileInfo>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView Provider = u"microsoft.jet.oledb.4.0";
constexpr QStringView SourceMark = u"data source=";

/// "provider = name;", blanks anywhere between the parts.
bool namesProvider(QStringView head) {
    const qsizetype equals = head.indexOf(u'=');
    const qsizetype end = head.indexOf(u';');
    return equals >= 0 && end > equals && head.first(equals).trimmed().compare(u"provider", Qt::CaseInsensitive) == 0 &&
           head.sliced(equals + 1, end - equals - 1).trimmed().compare(Provider, Qt::CaseInsensitive) == 0;
}

} // namespace

QString programFile(const QString& appPath, const QString& name) {
    return appPath.endsWith(u'\\') ? appPath + name : appPath + u'\\' + name;
}

QString connectionText(const QString& appPath) {
    return u"provider = %1;%2"_s.arg(Provider, SourceMark) + programFile(appPath, DataFileName.toString()) + u' ';
}

QString dataSource(const QString& connectionText) {
    const qsizetype mark = connectionText.indexOf(SourceMark, 0, Qt::CaseInsensitive);
    QString path = mark < 0 ? QString() : connectionText.mid(mark + SourceMark.size());
    while (path.endsWith(u' '))
        path.chop(1);
    if (path.isEmpty() || !namesProvider(QStringView(connectionText).first(mark)))
        throw RuntimeError(RuntimeError::ProviderUnknown, u"连接文字没有指明账本文件：%1"_s.arg(connectionText));
    return path;
}

QString systemPath(const QString& path) {
    const qsizetype last = path.lastIndexOf(u'\\');
    if (QDir::separator() == u'\\' || last <= path.lastIndexOf(u'/'))
        return path;
    const QString folder = path.first(last), oddFolder = path.first(last + 1), name = u'/' + path.sliced(last + 1);
    if (!QFileInfo::exists(folder + name) && QFileInfo::exists(oddFolder + name))
        return oddFolder + name;
    // A file of the literal name may be laid beside the folder by anybody, and stands for none in it.
    const bool isLiteral = !QFileInfo::exists(folder) && !QFileInfo::exists(oddFolder) && QFileInfo::exists(path);
    return isLiteral ? path : folder + name;
}

QString systemPath(const QString& path, const QString& inUse) {
    const QFileInfo used(inUse);
    return !inUse.isEmpty() && programFile(used.path(), used.fileName()) == path ? inUse : systemPath(path);
}

} // namespace qinghe
