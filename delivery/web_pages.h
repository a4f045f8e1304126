#pragma once

#include <QString>
#include <QStringList>

namespace qinghe {

/// The pages that the program opens and those that they lead to: the home page, the introduction, and the manual, whose
/// contents stand on the page of the tools. They link to each other alone and need nothing from the net.
QStringList webPageNames();

/// Puts the pages, their style and their pictures into the folder `web` below `folder`; a file that is up to date is
/// left alone, so that its time stays. Throws RuntimeError (PathFileAccess).
void deliverWebPages(const QString& folder);

} // namespace qinghe
