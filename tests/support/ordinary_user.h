#pragma once

#include <QFile>
#include <QStringList>

#include <gtest/gtest.h>
#include <unistd.h>

namespace qinghe::testing {

/// Permissions mean nothing to the administrator's account; the tests act as somebody else, to whom these files and
/// folders belong, while this lives.
class AsOrdinaryUser {
public:
    explicit AsOrdinaryUser(const QStringList& belongings) {
        constexpr uid_t nobody = 65534;
        if (m_before != 0)
            return;
        for (const QString& path : belongings)
            EXPECT_EQ(chown(QFile::encodeName(path).constData(), nobody, nobody), 0);
        EXPECT_EQ(seteuid(nobody), 0);
    }
    ~AsOrdinaryUser() { EXPECT_EQ(seteuid(m_before), 0); }
    AsOrdinaryUser(const AsOrdinaryUser&) = delete;
    AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;

private:
    uid_t m_before = geteuid();
};

} // namespace qinghe::testing
