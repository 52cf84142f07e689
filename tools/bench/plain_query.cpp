#include "tools/bench/plain_query.h"

#include <sqlite3.h>

#include <QElapsedTimer>
#include <QFile>
#include <algorithm>
#include <vector>

#include "tools/bench/commands.h"

namespace bench {

PlainFile::PlainFile(const QString& path) {
  sqlite3_open(path.isEmpty() ? ":memory:" : QFile::encodeName(path).constData(), &m_handle);
  sqlite3_exec(m_handle, "PRAGMA cache_size=-65536", nullptr, nullptr, nullptr);
}

PlainFile::~PlainFile() { sqlite3_close(m_handle); }

int PlainFile::run(const QString& sql) {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(m_handle, sql.toUtf8().constData(), -1, &statement, nullptr) != SQLITE_OK) return -1;
  int rows = 0;
  while (sqlite3_step(statement) == SQLITE_ROW) {
    ++rows;
    for (int column = 0; column < sqlite3_column_count(statement); ++column)
      sqlite3_column_text(statement, column);
  }
  return sqlite3_finalize(statement) == SQLITE_OK ? rows : -1;
}

std::vector<qint64> PlainFile::numbers(const QString& sql) {
  std::vector<qint64> values;
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(m_handle, sql.toUtf8().constData(), -1, &statement, nullptr) != SQLITE_OK) return {};
  while (sqlite3_step(statement) == SQLITE_ROW)
    for (int column = 0; column < sqlite3_column_count(statement); ++column)
      values.push_back(sqlite3_column_int64(statement, column));
  sqlite3_finalize(statement);
  return values;
}

void PlainFile::takeColumn(PlainFile& from, const QString& table, const QString& column) {
  run(QStringLiteral("BEGIN"));
  run(QStringLiteral("DROP TABLE IF EXISTS %1").arg(table));
  run(QStringLiteral("CREATE TABLE %1(ID INTEGER PRIMARY KEY, %2 TEXT)").arg(table, column));
  sqlite3_stmt* read = nullptr;
  sqlite3_stmt* write = nullptr;
  sqlite3_prepare_v2(from.m_handle, QStringLiteral("SELECT ID, %1 FROM %2").arg(column, table).toUtf8(), -1,
                     &read, nullptr);
  sqlite3_prepare_v2(m_handle, QStringLiteral("INSERT INTO %1 VALUES (?1, ?2)").arg(table).toUtf8(), -1,
                     &write, nullptr);
  while (sqlite3_step(read) == SQLITE_ROW) {
    sqlite3_bind_value(write, 1, sqlite3_column_value(read, 0));
    sqlite3_bind_text(write, 2, reinterpret_cast<const char*>(sqlite3_column_text(read, 1)), -1,
                      SQLITE_TRANSIENT);
    sqlite3_step(write);
    sqlite3_reset(write);
  }
  sqlite3_finalize(read);
  sqlite3_finalize(write);
  run(QStringLiteral("COMMIT"));
}

double middleMilliseconds(int runs, const std::function<void()>& work) {
  std::vector<double> times;
  for (int run = 0; run < runs; ++run) {
    QElapsedTimer timer;
    timer.start();
    work();
    times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
  }
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

void besideFloor(const char* name, double milliseconds, double floor) {
  const QByteArray stem(name);
  figure(stem.constData(), milliseconds, "ms");
  figure((stem + "_floor").constData(), floor, "ms");
  figure((stem + "_ratio").constData(), milliseconds / floor, "x");
}

}  // namespace bench
