#pragma once

#include "store/connection.h"

#include <QString>

#include <array>
#include <span>

namespace qinghe {

/// A step from one form of the data file to the next.
struct Migration {
    int to;                   ///< the version that the file has afterwards
    void (*run)(Connection&); ///< in a transaction that it neither begins nor ends; throws to have all undone
};

inline constexpr int FirstVersion = 1;

constexpr int versionAfter(std::span<const Migration> steps) {
    return steps.empty() ? FirstVersion : steps.back().to;
}

/// The steps that this program knows, their versions rising. New files are made by the same road: the tables of version
/// 1 (schema.cpp), then every step. A step is `{2, [](Connection& file) { file.run("ALTER TABLE ..."); }}`; who adds
/// one puts a file of the version before beside those in tests/store/versions, where that of version 1 has always been.
inline constexpr std::array<Migration, 0> Migrations{};

/// The version of the data files that this program makes and leaves. It stands in the file (PRAGMA user_version). Files
/// of version 1 were delivered without a number: 0 means 1, and stays, since a file is not written only to be numbered
/// (it may lie where it can be read alone).
inline constexpr int CurrentVersion = versionAfter(Migrations);

/// Refuses a data file of a later version than CurrentVersion, and one whose number is none, by a look at its first
/// bytes, whatever its two header bytes are. What is no data file passes: it is told by whoever reads it. Throws
/// RuntimeError (StoreFailure).
void requireKnownVersion(const QString& path);

/// Brings an open file from its version to that of the last of `steps`: all of them in one transaction, or none. Does
/// nothing to a file that has it, beyond reading its number. Before the first step a copy of the file is kept beside
/// it ("data.版本1.dat"), whole and durable, for its owner alone; it can be restored like a backup. A copy of the
/// same bytes, of an attempt before, is not kept twice; other files that bear the name stay.
///
/// Throws RuntimeError, with the file as it was: StoreFailure as requireKnownVersion does; FileLocked when another
/// program wrote meanwhile; what the store and the steps throw.
void bringUpToDate(Connection& connection, std::span<const Migration> steps = Migrations);

} // namespace qinghe
