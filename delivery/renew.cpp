#include "delivery/renew.h"

#include "runtime/runtime_error.h"

#include <QFile>
#include <QSaveFile>

namespace qinghe {

using namespace Qt::StringLiterals;

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void renew(const QString& path, const QByteArray& content) {
    if (contentOf(path) == content) {
        return;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit()) {
        throw RuntimeError(RuntimeError::PathFileAccess, u"无法写入文件“%1”：%2。"_s.arg(path, file.errorString()));
    }
}

} // namespace qinghe
