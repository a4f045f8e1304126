#pragma once

#include "store/safety_retention.h"

namespace qinghe {

/// The files in the book's folder of safety copies; none where there is no such folder of one's own.
std::vector<SafetyFile> safetyFiles(const QString& book);

/// Removes what a killed program left half-written. To be called while no copy is being made.
void removeUnfinishedCopies(const QString& book);

/// Removes the copies that go, see outdatedCopies. What can not be removed stays.
void removeOutdatedCopies(const QString& book, QDate today, const QString& spared = {});

} // namespace qinghe
