#pragma once

#include <QString>

#include <functional>

namespace qinghe {

/// Where an account's own ledger lies when the program lies elsewhere: a folder in its home.
QString ownLedgerFolder();

/// Makes a ledger's folder where there is none, for its owner alone: `bring` fills one beside it, which then takes the
/// name, so that it is there whole or not at all. In one that holds a book `bring` renews what the program brings
/// along; where it cannot, what is there serves on. A folder without its book is left alone: nothing takes the place of
/// a book unasked, and the sign-in tells of the loss. Throws RuntimeError: PathFileAccess, and what `bring` throws.
void readyLedgerFolder(const QString& folder, const std::function<void(const QString& folder)>& bring);

/// Brings the first book from one folder to another, where there is one to bring and no trace of a book: one that
/// somebody has used leaves its safety copies when it is gone, and is missed. Throws RuntimeError as bringAlong does.
void layFirstBook(const QString& from, const QString& to);

/// Copies what the program brings along, folders and all, from one folder to another: what is missing there and what
/// has become newer. A book that is there is never touched. Throws RuntimeError: PathFileAccess, DiskFull,
/// DeviceFailure.
void bringAlong(const QString& from, const QString& to);

} // namespace qinghe
