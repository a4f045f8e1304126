#pragma once

#include "core/stored_picture.h"

#include <optional>

namespace qinghe {

struct NextPicture {
    QString name;
    QImage image; ///< as it is shown on `place`
};

/// Of a table of pictures the first row counts. Moves the one that counts behind the others, which move up, and further
/// ones until the first can be shown: one that cannot would end the next start. Writes its file, too. Nothing, and the
/// rows as they were, where there is no other to show. Throws RuntimeError.
std::optional<NextPicture> turnToNext(const StoredPicture& picture, Adodc& control, const Shared& shared,
                                      const QWidget& place);

} // namespace qinghe
