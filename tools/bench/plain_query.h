#pragma once

#include <QString>
#include <functional>
#include <vector>

struct sqlite3;

namespace bench {

/// A plain handle on a file, without anything of the program's store: the floor that figures stand beside.
class PlainFile {
 public:
  /// A blank path is a database in memory.
  explicit PlainFile(const QString& path);
  ~PlainFile();
  PlainFile(const PlainFile&) = delete;
  PlainFile& operator=(const PlainFile&) = delete;

  /// Runs a text and reads every column of every row; gives the number of rows, -1 where it failed.
  int run(const QString& sql);
  /// Runs a text and gives the numbers of all columns, row after row.
  std::vector<qint64> numbers(const QString& sql);
  /// Makes a table of the same name here that holds nothing but ID and the column.
  void takeColumn(PlainFile& from, const QString& table, const QString& column);

 private:
  sqlite3* m_handle = nullptr;
};

/// The middle one of several runs, in milliseconds.
double middleMilliseconds(int runs, const std::function<void()>& work);

/// Prints a figure in milliseconds, its floor and the ratio of the two.
void besideFloor(const char* name, double milliseconds, double floor);

}  // namespace bench
