#pragma once

#include <QString>
#include <memory>

#include "platform/store/record_set.h"

struct sqlite3;

namespace store {

class Engine;

/// One database file; both claim files are joined for one transaction by PairStore.
///
/// Opening never makes a file: a missing, empty, alien or damaged one is a fault with its name, and so is a
/// real file of the office database that these files replace. A file without write permission opens for
/// reading, and writing to it is a fault with its name. Opening a path again in the same thread gives the
/// same Database, as long as one is held.
///
/// A file of an older version gets the columns that it lacks when it is opened (growToCatalogue()); nothing
/// else is written then.
class Database : public std::enable_shared_from_this<Database> {
 public:
  /// Opens the file at the path. The fault's text names the file.
  static Result<std::shared_ptr<Database>> open(const QString& path);
  /// The same without adding columns, for copies of the file as it is.
  static Result<std::shared_ptr<Database>> openAsItIs(const QString& path);
  ~Database();

  QString path() const;
  sqlite3* handle() const;
  /// Schemas, statements and memory copies of this file; for the rooms of the store.
  Engine& engine() const { return *m_engine; }

 private:
  explicit Database(QString path, sqlite3* handle);
  QString m_path;
  sqlite3* m_handle;
  std::unique_ptr<Engine> m_engine;
  bool m_grown = false;  ///< has the columns of the catalogue, or may only be read
};

/// The checks of opening by the file's first bytes alone: missing, empty, alien, a real office database.
Done checkFile(const QString& path);

/// Which columns of the catalogue a fresh file gets.
enum class FreshColumns {
  All,
  FirstSchema,  ///< as the file stood before every growth run; tests grow such a file
};

/// Makes a fresh file at the path with all tables and columns that the catalogue lists for the file
/// name. Refuses to touch an existing file.
Done createFresh(const QString& path, const QString& catalogueFile, FreshColumns which = FreshColumns::All);

}  // namespace store
