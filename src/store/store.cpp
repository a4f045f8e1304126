#include "store/store.h"

#include "runtime/runtime_error.h"
#include "store/session.h"

#include <QDir>
#include <QFileInfo>

namespace qinghe {

namespace {

void requireStoreFile(const QString& path) {
    const QFileInfo file(path);
    const QString shown = QDir::toNativeSeparators(path);
    if (!file.isFile())
        throw RuntimeError(RuntimeError::FileNotFound, QStringLiteral("找不到账本文件“%1”。").arg(shown));
    if (file.size() == 0) // to SQLite an empty file is a store without tables
        throw RuntimeError(RuntimeError::StoreFailure, QStringLiteral("账本文件“%1”是空的。").arg(shown));
}

/// Whether an error leaves the file and the open unit of work sound.
bool isRefusal(const RuntimeError& error) {
    return error.number() == RuntimeError::QueryFailure;
}

} // namespace

struct Store::Impl {
    QString path;
    std::unique_ptr<Session> open;
    int generation = 0;

    Session& session() {
        if (open && !open->inTransaction() && open->fileMoved())
            drop();
        if (!open) {
            requireStoreFile(path);
            open = std::make_unique<Session>(path);
        }
        return *open;
    }

    void drop() {
        if (open)
            ++generation;
        open.reset();
    }

    template<typename Work>
    auto run(Work work) -> decltype(work(*open)) {
        try {
            return work(session());
        } catch (const RuntimeError& error) {
            if (!isRefusal(error))
                recover(error);
            throw;
        }
    }

    void recover(const RuntimeError& error) {
        if (open)
            open->rollBack();
        if (error.number() == RuntimeError::StoreFailure)
            drop();
    }
};

Store::Store() : m(std::make_unique<Impl>()) {}
Store::~Store() = default;

void Store::use(const QString& path) {
    if (path == m->path)
        return;
    close();
    m->path = path;
}

const QString& Store::path() const {
    return m->path;
}

std::shared_ptr<const ResultSet> Store::fetch(const QString& source) {
    return m->run([&](Session& session) { return session.fetch(source); });
}

bool Store::inTransaction() const {
    return m->open && m->open->inTransaction();
}

void Store::commit() {
    if (inTransaction())
        m->run([](Session& session) { session.commit(); });
}

void Store::close() {
    try {
        commit();
    } catch (const RuntimeError&) {
        m->drop();
        throw;
    }
    m->drop();
}

int Store::generation() const {
    return m->generation;
}

qint64 Store::insertRow(const QString& table, std::span<const int> ordinals, std::span<const StoredValue> values) {
    return m->run([&](Session& session) { return session.insertRow(table, ordinals, values); });
}

void Store::updateRow(const QString& table, qint64 rowid, std::span<const int> ordinals,
                      std::span<const StoredValue> values) {
    m->run([&](Session& session) { session.updateRow(table, rowid, ordinals, values); });
}

void Store::deleteRow(const QString& table, qint64 rowid) {
    m->run([&](Session& session) { session.deleteRow(table, rowid); });
}

const TableColumns& Store::columns(const QString& table) {
    return m->run([&](Session& session) -> const TableColumns& { return session.columns(table); });
}

} // namespace qinghe
