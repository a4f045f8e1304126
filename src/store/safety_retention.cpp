#include "store/safety_retention.h"

#include <algorithm>
#include <map>
#include <set>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int DaysKept = 7, MonthsKept = 12;

/// A copy with what lies beside it, such as its journal: they come and go together.
struct Copy {
    QString key; ///< the names up to their suffixes; sorts by time
    QDate day;
    QStringList names;
    qint64 size = 0;
    bool isDaily = false, isSound = false, isDamaged = false;
};

constexpr qsizetype DayLength = 10, TimeLength = 6, OccasionAt = DayLength + TimeLength + 2;

/// Nothing for a name that safety copies do not have.
QDate dayOf(const QString& name) {
    const QDate day = QDate::fromString(name.first(std::min(DayLength, name.size())), u"yyyy-MM-dd"_s);
    const bool timed = name.size() > OccasionAt && name[DayLength] == u' ' && name[OccasionAt - 1] == u' ' &&
                       std::ranges::all_of(name.sliced(DayLength + 1, TimeLength), [](QChar c) { return c.isDigit(); });
    return timed ? day : QDate();
}

/// From the oldest to the newest.
std::vector<Copy> copiesIn(const std::vector<SafetyFile>& files) {
    std::map<QString, Copy> copies;
    for (const auto& [name, size] : files) {
        const QDate day = dayOf(name);
        if (!day.isValid())
            continue;
        const QString key = name.section(u'.', 0, 0);
        Copy& copy = copies[key];
        copy.key = key;
        copy.day = day;
        copy.names << name;
        copy.size += size;
    }
    std::vector<Copy> sorted;
    for (auto& [key, copy] : copies) {
        const QString occasion = key.sliced(OccasionAt);
        copy.isDaily = occasion.startsWith(DailyCopy);
        copy.isDamaged = occasion.contains(DamagedMark);
        copy.isSound = !copy.isDamaged && copy.names == QStringList(key + u".dat"_s);
        sorted.push_back(std::move(copy));
    }
    return sorted;
}

int monthOf(QDate day) {
    return day.year() * 12 + day.month();
}

class Choice {
public:
    Choice(const std::vector<Copy>& copies, QDate today, const QString& spared) : m_today(today) {
        for (const Copy& copy : copies) {
            if (copy.isDaily && copy.isSound)
                m_firstOfMonth.try_emplace(monthOf(copy.day), copy.key);
            if (copy.isSound)
                m_before = std::exchange(m_newest, copy.key);
            if (copy.isDamaged)
                m_newestDamaged = copy.key;
            if (copy.names.contains(spared))
                m_spared = copy.key;
        }
    }

    bool mustStay(const Copy& copy) const { return copy.key == m_newest || copy.key == m_spared; }

    bool isOutdated(const Copy& copy) const {
        if (mustStay(copy) || copy.key == m_before || copy.day > m_today)
            return false;
        if (copy.isDamaged && copy.key != m_newestDamaged)
            return true;
        if (!copy.isDaily)
            return copy.day < m_today.addMonths(-MonthsKept);
        const auto first = m_firstOfMonth.find(monthOf(copy.day));
        const bool opensMonth = first != m_firstOfMonth.end() && first->second == copy.key;
        const bool keptByMonth = opensMonth && monthOf(copy.day) > monthOf(m_today) - MonthsKept;
        return !keptByMonth && copy.day <= m_today.addDays(-DaysKept);
    }

private:
    QDate m_today;
    std::map<int, QString> m_firstOfMonth;
    QString m_newest, m_before, m_newestDamaged, m_spared;
};

} // namespace

bool hasDailyCopy(const std::vector<SafetyFile>& files, QDate day) {
    return std::ranges::any_of(copiesIn(files),
                               [day](const Copy& copy) { return copy.isDaily && copy.isSound && copy.day == day; });
}

QStringList outdatedCopies(const std::vector<SafetyFile>& files, QDate today, const QString& spared) {
    std::vector<Copy> copies = copiesIn(files);
    const Choice choice(copies, today, spared);
    QStringList going;
    const auto goes = [&going](const Copy& copy) {
        going << copy.names;
        return true;
    };
    std::erase_if(copies, [&](const Copy& copy) { return choice.isOutdated(copy) && goes(copy); });
    qint64 total = 0;
    for (const Copy& copy : copies)
        total += copy.size;
    std::ranges::stable_partition(copies, &Copy::isDamaged);
    for (const Copy& copy : copies) {
        if (total > SafetyRoom && !choice.mustStay(copy) && goes(copy))
            total -= copy.size;
    }
    return going;
}

} // namespace qinghe
