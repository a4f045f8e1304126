#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

#include <vector>

namespace qinghe {

/// What a copy of the day is called for, and the mark of a copy whose book is damaged; see nameInSafety.
inline constexpr QStringView DailyCopy = u"每日";
inline constexpr QStringView DamagedMark = u"已损坏";

/// The most bytes that safety copies take in all.
inline constexpr qint64 SafetyRoom = 200LL << 20;

struct SafetyFile {
    QString name;
    qint64 size = 0;
};

/// Whether a copy of that day's beginning is among the files.
bool hasDailyCopy(const std::vector<SafetyFile>& files, QDate day);

/// The files that go. Of the copies of the day the last seven days stay and the first of each of the last twelve
/// months; copies made before something happened stay for twelve months, of the damaged ones the newest alone. If the
/// rest takes more than SafetyRoom, damaged ones go first, then the oldest. The newest sound copy never goes, nor does
/// `spared`; the one before stays for want of age at least, so that a clock which is wrong for a day does not clear the
/// folder. Copies of days to come stay for the same reason. Files with other names are none of ours: they stay and do
/// not count.
QStringList outdatedCopies(const std::vector<SafetyFile>& files, QDate today, const QString& spared = {});

} // namespace qinghe
