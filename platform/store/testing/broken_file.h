#pragma once

// Database files that cannot be read for a while: what every list, form and run meets when another computer
// is storing, or when a disk loses a page.

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QFile>
#include <QtEndian>

#include "platform/store/catalogue.h"
#include "platform/store/database.h"

namespace store::broken {

/// Holds a file as another program that is storing, until the end of the scope. This program waits for it
/// only `milliseconds` instead of five seconds; the file must not be opened by the path anew meanwhile.
class LockedFile {
 public:
  explicit LockedFile(const QString& path, int milliseconds = 20) {
    const auto own = Database::open(path);
    EXPECT_TRUE(own.ok()) << (own ? "" : own.fault().message.toStdString());
    if (own) m_own = *own;
    if (own) sqlite3_busy_timeout(m_own->handle(), milliseconds);
    sqlite3_open(QFile::encodeName(path).constData(), &m_other);
    EXPECT_EQ(sqlite3_exec(m_other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(m_other);
  }
  ~LockedFile() { release(); }
  LockedFile(const LockedFile&) = delete;
  LockedFile& operator=(const LockedFile&) = delete;

  void release() {
    if (m_other) sqlite3_exec(m_other, "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_close(std::exchange(m_other, nullptr));
  }

 private:
  std::shared_ptr<Database> m_own;
  sqlite3* m_other = nullptr;
};

/// A row of a table that fills a page of the file nearly alone, whatever its columns: the values given, and a
/// filling in all other columns of text.
inline QHash<QString, Value> pageOfRow(const TableRow& table, QHash<QString, Value> row) {
  constexpr qsizetype kLetters = 1500, kMaxInColumn = 250;
  QStringList texts;
  for (const ColumnRow& column : table.columns) {
    const QString name = QString::fromUtf16(column.name);
    if (column.type == ColumnType::Text255 && !row.contains(name)) texts += name;
  }
  for (const QString& name : texts)
    row.insert(name, QString(std::min(kMaxInColumn, kLetters / texts.size()), u'見'));
  return row;
}

/// Which part of a row is damaged: a row that is larger than a page goes on in overflow pages, and what lies
/// before them can still be read.
enum class RowPart { Beginning, Overflow };

/// Overwrites the page that holds the row with a text, which no other row has. The rows should fill pages of
/// their own (pageOfRow()). repair() brings the page back.
class DamagedPage {
 public:
  DamagedPage(const QString& path, const QString& text, RowPart part = RowPart::Beginning) : m_path(path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    const QByteArray sought(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    const auto size = qsizetype(qFromBigEndian<quint16>(bytes.constData() + 16));
    constexpr char kTableLeaf = 13;
    for (qsizetype at = bytes.indexOf(sought); at >= 0 && m_page.isEmpty();
         at = bytes.indexOf(sought, at + 1)) {
      m_place = at / size * size;
      if ((bytes[m_place] == kTableLeaf) == (part == RowPart::Beginning)) m_page = bytes.mid(m_place, size);
    }
    EXPECT_FALSE(m_page.isEmpty()) << "no row holds " << text.toStdString();
    write(QByteArray(m_page.size(), '\xFF'));
  }
  ~DamagedPage() { repair(); }
  DamagedPage(const DamagedPage&) = delete;
  DamagedPage& operator=(const DamagedPage&) = delete;

  void repair() {
    if (!m_page.isEmpty()) write(std::exchange(m_page, {}));
  }

 private:
  /// The file's counter goes on, as after every write, so that nobody answers from the page that was read
  /// before.
  void write(const QByteArray& page) const {
    constexpr qint64 kCounter = 24;
    QFile file(m_path);
    EXPECT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(kCounter);
    QByteArray counter = file.read(4);
    qToBigEndian<quint32>(qFromBigEndian<quint32>(counter.constData()) + 1, counter.data());
    file.seek(kCounter);
    file.write(counter);
    file.seek(m_place);
    EXPECT_EQ(file.write(page), page.size());
  }

  QString m_path;
  qint64 m_place = 0;
  QByteArray m_page;
};

}  // namespace store::broken
