#include "platform/store/database.h"

#include <sqlite3.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include "platform/store/engine.h"
#include "platform/store/growth.h"

namespace store {
namespace {

constexpr int kBusyMilliseconds = 5000;
/// Written into the header of every file that this program makes.
constexpr qint64 kApplicationId = 0x43485444;

Fault fileFault(const QString& path, const QString& why) {
  return {QStringLiteral("「%1」%2").arg(QFileInfo(path).fileName(), why)};
}

/// Which file stands at a path: a file put in its place is another one.
struct FileIdentity {
  quint64 device = 0;
  quint64 inode = 0;
  bool operator==(const FileIdentity&) const = default;
};

FileIdentity identityOf(const QString& path) {
  struct stat facts {};
  if (::stat(QFile::encodeName(path).constData(), &facts) != 0) return {};
  return {facts.st_dev, facts.st_ino};
}

struct OpenFile {
  std::weak_ptr<Database> database;
  FileIdentity identity;
};

/// The open files of this thread by path: record sets on one path share one handle, so that opening is cheap
/// and no lock of this program stands against another of its own.
QHash<QString, OpenFile>& openFiles() {
  static thread_local QHash<QString, OpenFile> files;
  return files;
}

bool writable(const QString& path) {
  struct stat facts {};
  return ::stat(QFile::encodeName(path).constData(), &facts) == 0 &&
         (facts.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0 && QFileInfo(path).isWritable();
}

Done setUp(sqlite3* handle, const QString& path) {
  sqlite3_extended_result_codes(handle, 1);
  for (const char* pragma : {"PRAGMA journal_mode=DELETE", "PRAGMA synchronous=FULL", "PRAGMA mmap_size=0",
                             "PRAGMA cache_size=-65536", "PRAGMA trusted_schema=OFF"})
    if (const Done done = execute(handle, path, QLatin1String(pragma)); !done) return done;
  return {};
}

Result<qint64> pragmaNumber(sqlite3* handle, const QString& path, const char* sql) {
  Result<Statement> statement = Statement::prepare(handle, path, QLatin1String(sql));
  if (!statement) return statement.fault();
  if (const Result<bool> row = statement->step(); !row) return row.fault();
  return statement->number(0);
}

/// What the first bytes do not tell: made by this program, readable to its last page.
Done checkContent(sqlite3* handle, const QString& path) {
  const Result<qint64> tables = pragmaNumber(handle, path, "SELECT count(*) FROM sqlite_master");
  if (!tables) return tables.fault();
  const Result<qint64> id = pragmaNumber(handle, path, "PRAGMA application_id");
  if (!id) return id.fault();
  if (*id != kApplicationId)
    return fileFault(path, QStringLiteral("は、この治療台帳のデータファイルではありません。"));
  const Result<qint64> pages = pragmaNumber(handle, path, "PRAGMA page_count");
  const Result<qint64> size = pragmaNumber(handle, path, "PRAGMA page_size");
  if (!pages || !size) return (!pages ? pages : size).fault();
  if (QFileInfo(path).size() < *pages * *size)
    return fileFault(
        path, QStringLiteral("は、壊れているため使用できません。バックアップから元に戻してください。"));
  return {};
}

Done createTables(sqlite3* handle, const QString& path, const QString& catalogueFile, FreshColumns which) {
  for (const TableRow& row : catalogue()) {
    if (catalogueFile != QStringView(row.file)) continue;
    const QString table = quotedName(QString::fromUtf16(row.table));
    QStringList columns;
    for (const ColumnRow& column : row.columns)
      if (!column.added || which == FreshColumns::All)
        columns += columnText(QString::fromUtf16(column.name), column.type);
    const QString create =
        QStringLiteral("CREATE TABLE ") + table + QLatin1Char('(') + columns.join(u',') + QLatin1Char(')');
    // The whole list of IDs is read from this index instead of the wide rows.
    const QString index = QStringLiteral("CREATE INDEX ") +
                          quotedName(QString::fromUtf16(row.table) + QStringLiteral("_ID")) +
                          QStringLiteral(" ON ") + table + QStringLiteral("(\"ID\")");
    for (const QString& sql : {create, index})
      if (const Done done = execute(handle, path, sql); !done) return done;
  }
  return {};
}

Done fill(sqlite3* handle, const QString& path, const QString& catalogueFile, FreshColumns which) {
  // UTF-16 keeps every text of the program byte for byte and is read without conversion.
  for (const QString& sql : {QStringLiteral("PRAGMA encoding='UTF-16le'"),
                             QStringLiteral("PRAGMA application_id=%1").arg(kApplicationId)})
    if (const Done done = execute(handle, path, sql); !done) return done;
  Transaction transaction(handle, path);
  if (const Done begun = transaction.begin(); !begun) return begun;
  if (const Done made = createTables(handle, path, catalogueFile, which); !made) return made;
  return transaction.commit();
}

}  // namespace

Done checkFile(const QString& path) {
  const QFileInfo facts(path);
  if (!facts.exists()) return fileFault(path, QStringLiteral("が見つかりません。（%1）").arg(path));
  if (facts.isDir()) return fileFault(path, QStringLiteral("は、ファイルではなくフォルダです。"));
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    return fileFault(path, QStringLiteral("を開くことができません。読み取りの権限を確認してください。"));
  const QByteArray start = file.read(32);
  if (start.isEmpty()) return fileFault(path, QStringLiteral("は、中身が空のファイルです。"));
  const QByteArray mark = start.mid(4);
  if (mark.startsWith("Standard Jet DB") || mark.startsWith("Standard ACE DB"))
    return fileFault(path,
                     QStringLiteral("は、Accessのデータベースです。このままでは開くことができません。"));
  constexpr int kWriteVersion = 18;  // 2: a write-ahead log, which no file of this program has
  if (!start.startsWith("SQLite format 3") || start.size() < 32 || start[kWriteVersion] != 1)
    return fileFault(path, QStringLiteral("は、この治療台帳のデータファイルではありません。"));
  return {};
}

Database::Database(QString path, sqlite3* handle)
    : m_path(std::move(path)), m_handle(handle), m_engine(std::make_unique<Engine>(handle, m_path)) {}

Database::~Database() {
  m_engine.reset();
  sqlite3_close_v2(m_handle);
}

QString Database::path() const { return m_path; }
sqlite3* Database::handle() const { return m_handle; }

Result<std::shared_ptr<Database>> Database::open(const QString& path) {
  Result<std::shared_ptr<Database>> opened = openAsItIs(path);
  if (!opened || (*opened)->m_grown) return opened;
  if (const Done grown = growToCatalogue((*opened)->engine()); !grown) return grown.fault();
  (*opened)->m_grown = true;
  return opened;
}

Result<std::shared_ptr<Database>> Database::openAsItIs(const QString& path) {
  const QString place = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
  const FileIdentity identity = identityOf(place);
  const OpenFile known = openFiles().value(place);
  if (std::shared_ptr<Database> shared = known.database.lock(); shared && known.identity == identity)
    return shared;
  // Only now: closing a second look at a file would drop this program's own locks on it.
  if (const Done checked = checkFile(place); !checked) return checked.fault();
  sqlite3* handle = nullptr;
  const int access = writable(place) ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY;
  const int answer = sqlite3_open_v2(QFile::encodeName(place).constData(), &handle,
                                     access | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_PRIVATECACHE, nullptr);
  std::shared_ptr<Database> database(new Database(place, handle));
  if (answer != SQLITE_OK) return engineFault(handle, place);
  sqlite3_busy_timeout(handle, kBusyMilliseconds);
  if (const Done done = checkContent(handle, place); !done) return done.fault();
  if (const Done done = setUp(handle, place); !done) return done.fault();
  openFiles()[place] = {database, identity};
  return database;
}

Done createFresh(const QString& path, const QString& catalogueFile, FreshColumns which) {
  if (!tableOfFile(catalogueFile))
    return Fault{
        QStringLiteral("「%1」は、この治療台帳のデータファイルの名前ではありません。").arg(catalogueFile)};
  if (QFileInfo::exists(path)) return fileFault(path, QStringLiteral("は、すでにあります。"));
  // Made beside and renamed, so that a file that stands is always whole.
  const QString beside = path + QStringLiteral(".new");
  QFile::remove(beside);
  sqlite3* handle = nullptr;
  Done done;
  if (sqlite3_open_v2(QFile::encodeName(beside).constData(), &handle,
                      SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) != SQLITE_OK)
    done = engineFault(handle, path);
  else
    done = fill(handle, path, catalogueFile, which);
  sqlite3_close_v2(handle);
  if (done && !QFile::rename(beside, path))
    done = fileFault(path,
                     QStringLiteral("を作ることができません。フォルダの書き込みの権限を確認してください。"));
  if (!done) QFile::remove(beside);
  return done;
}

}  // namespace store
