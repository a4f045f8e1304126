#include "store/store.h"

#include "runtime/runtime_error.h"
#include "store/copies.h"
#include "store/session.h"

#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>

#include <utility>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 FileHeaderSize = 100;

void requireStoreFile(const QString& path) {
    const QFileInfo file(path);
    const QString shown = QDir::toNativeSeparators(path);
    if (!file.isFile())
        throw RuntimeError(RuntimeError::FileNotFound, u"找不到账本文件“%1”。"_s.arg(shown) + wayBack(path));
    if (file.size() < FileHeaderSize) // to SQLite a file of a few bytes is a store without tables
        throw RuntimeError(RuntimeError::StoreFailure,
                           u"“%1”是空的，或者不完整，不是账本文件。"_s.arg(shown) + wayBack(path));
}

/// Whether an error leaves the file and the open unit of work sound.
bool isRefusal(const RuntimeError& error) {
    return error.number() == RuntimeError::QueryFailure;
}

} // namespace

struct Store::Impl {
    explicit Impl(ThisYear year) : thisYear(std::move(year)) {}

    const ThisYear thisYear;
    QString path;
    std::unique_ptr<Session> open;
    int generation = 0;
    bool hasUndone = false;
    Patience patience = UsualPatience;

    /// The open file, opened if need be; one that was replaced under its name is opened anew.
    Session& session() {
        dropIfMoved();
        if (!open) {
            requireStoreFile(path);
            open = std::make_unique<Session>(path, thisYear, patience);
        }
        return *open;
    }

    /// Gives the one that was.
    Patience setPatience(Patience next) {
        if (open)
            open->setPatience(next);
        return std::exchange(patience, next);
    }

    void dropIfMoved() {
        if (open && !open->inTransaction() && open->fileMoved())
            drop();
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

    /// False where the work fails with this error; then it counts as never begun.
    bool doWithout(int number, const std::function<void()>& work) {
        const bool undoneBefore = hasUndone;
        try {
            work();
            return true;
        } catch (const RuntimeError& error) {
            if (error.number() != number)
                throw;
        }
        hasUndone = undoneBefore;
        return false;
    }

    void recover(const RuntimeError& error) {
        hasUndone = true;
        if (open)
            open->rollBack();
        if (error.number() == RuntimeError::StoreFailure)
            drop();
    }
};

Store::Store(ThisYear thisYear) : m_impl(std::make_unique<Impl>(std::move(thisYear))) {}
Store::~Store() = default;

void Store::use(const QString& path) {
    if (path == m_impl->path)
        return;
    close();
    m_impl->path = path;
}

const QString& Store::path() const {
    return m_impl->path;
}

std::shared_ptr<ResultSet> Store::fetch(const QString& source) {
    return m_impl->run([&](Session& session) { return session.fetch(source); });
}

size_t Store::rest() {
    return m_impl->open ? m_impl->open->rest() : 0;
}

bool Store::inTransaction() const {
    return m_impl->open && m_impl->open->inTransaction();
}

void Store::commit() {
    if (inTransaction())
        m_impl->run([](Session& session) { session.commit(); });
}

void Store::close() {
    try {
        commit();
    } catch (const RuntimeError&) {
        m_impl->drop();
        throw;
    }
    m_impl->drop();
}

bool Store::hasUndone() const {
    return m_impl->hasUndone;
}

Store::Stillness Store::holdStill() {
    commit();
    const bool undoneBefore = hasUndone();
    try {
        m_impl->run([](Session& session) { session.hold(); });
    } catch (const RuntimeError& error) {
        if (error.number() == RuntimeError::FileLocked)
            throw;
        m_impl->hasUndone = undoneBefore;
    }
    return Stillness(*this);
}

Store::Stillness::~Stillness() {
    if (m_store.m_impl->open)
        m_store.m_impl->open->rollBack();
}

void Store::setPatience(std::chrono::milliseconds patience) {
    m_impl->setPatience(patience);
}

bool Store::tryNow(const std::function<void()>& reading) {
    const Patience usual = m_impl->setPatience(Patience(0));
    const auto backToUsual = qScopeGuard([&] { m_impl->setPatience(usual); });
    return m_impl->doWithout(RuntimeError::FileLocked, reading);
}

bool Store::tryToWrite(const std::function<void()>& writing) {
    commit();
    return m_impl->doWithout(RuntimeError::DiskFull, [&] {
        writing();
        commit();
    });
}

int Store::generation() const {
    return m_impl->generation;
}

HeldFile Store::heldFile() const {
    return m_impl->open->heldFile();
}

HeldFile Store::heldJournal() const {
    return m_impl->open->heldJournal();
}

const ThisYear& Store::thisYear() const {
    return m_impl->thisYear;
}

bool Store::isCurrent(int generation) {
    m_impl->dropIfMoved();
    return generation == m_impl->generation;
}

void Store::requireGeneration(int generation) {
    if (!isCurrent(generation))
        throw RuntimeError(RuntimeError::StoreFailure, u"账本文件在这期间关闭或换掉了，原来读出的记录不能再用。"_s);
}

std::shared_ptr<const ResultSet> Store::fetchAgain(const ResultShape& shape, qint64 first, qint64 last) {
    return m_impl->run([&](Session& session) { return session.fetchAgain(shape, first, last); });
}

qint64 Store::insertRow(const QString& table, std::span<const int> ordinals, std::span<const StoredValue> values) {
    return m_impl->run([&](Session& session) { return session.insertRow(table, ordinals, values); });
}

void Store::updateRow(const QString& table, qint64 rowid, std::span<const int> ordinals,
                      std::span<const StoredValue> values) {
    m_impl->run([&](Session& session) { session.updateRow(table, rowid, ordinals, values); });
}

void Store::deleteRow(const QString& table, qint64 rowid) {
    m_impl->run([&](Session& session) { session.deleteRow(table, rowid); });
}

const TableColumns& Store::columns(const QString& table) {
    return m_impl->run([&](Session& session) -> const TableColumns& { return session.columns(table); });
}

} // namespace qinghe
