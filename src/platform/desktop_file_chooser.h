#pragma once

#include "platform/services.h"

namespace qinghe {

/// The file chooser of the desktop: one dialog for names that exist and for new ones.
class DesktopFileChooser : public FileChooser {
public:
    std::optional<QString> choose(const QString& filter, const QString& name) override;
};

/// A filter as forms write it, pairs of words and patterns joined by "|" ("图片|*.jpg;*.png|*.dat|*.dat"), in Qt's
/// form, an entry a pair.
QStringList nameFilters(const QString& filter);

} // namespace qinghe
