#pragma once

#include <QString>
#include <memory>

#include "platform/store/record_set.h"

struct sqlite3;

namespace store {

/// One database file. Several files may be joined for one transaction (PairTransaction).
/// Opening never makes a file: a missing, empty, alien, damaged or read-only one is told by name.
class Database : public std::enable_shared_from_this<Database> {
 public:
  /// Opens the file at the path. The fault's text names the file.
  static Result<std::shared_ptr<Database>> open(const QString& path);
  ~Database();

  QString path() const;
  sqlite3* handle() const;

 private:
  explicit Database(QString path, sqlite3* handle);
  QString m_path;
  sqlite3* m_handle;
};

/// Makes a fresh file at the path with all tables and columns that the catalogue lists for the file
/// name. Refuses to touch an existing file.
Done createFresh(const QString& path, const QString& catalogueFile);

}  // namespace store
