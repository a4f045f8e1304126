#pragma once

#include <QByteArray>
#include <QString>

namespace qinghe {

/// The whole file, or a resource; empty when there is none.
QByteArray contentOf(const QString& path);

/// Gives a file this content, whole or not at all; one that has it is left alone, so that its time stays. Throws
/// RuntimeError (PathFileAccess).
void renew(const QString& path, const QByteArray& content);

} // namespace qinghe
