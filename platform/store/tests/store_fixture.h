#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "platform/store/catalogue.h"
#include "platform/store/connection.h"
#include "platform/store/database.h"
#include "platform/store/record_set.h"

namespace store {

inline void PrintTo(const Done& done, std::ostream* out) {
  *out << (done ? "done" : done.fault().message.toStdString());
}

/// A folder of fresh files that goes away with the test.
class StoreTest : public testing::Test {
 protected:
  QString path(const QString& file) const { return m_folder.filePath(file); }

  QString fresh(const QString& file) const {
    const Done made = createFresh(path(file), file);
    EXPECT_TRUE(made.ok()) << (made ? "" : made.fault().message.toStdString());
    return path(file);
  }

  RecordSet openSet(const QString& file, const QString& table) const {
    Result<std::shared_ptr<Database>> database = Database::open(path(file));
    EXPECT_TRUE(database.ok()) << (database ? "" : database.fault().message.toStdString());
    if (!database) return {};
    Result<RecordSet> set = RecordSet::open(*database, table);
    EXPECT_TRUE(set.ok()) << (set ? "" : set.fault().message.toStdString());
    return set ? std::move(*set) : RecordSet();
  }

  static qint64 add(RecordSet& set, const QList<std::pair<QString, QString>>& columns) {
    EXPECT_TRUE(set.addNew().ok());
    for (const auto& [column, value] : columns)
      EXPECT_TRUE(set.setValue(column, value).ok()) << column.toStdString();
    const Done done = set.update();
    EXPECT_TRUE(done.ok()) << (done ? "" : done.fault().message.toStdString());
    return set.lastModified();
  }

  /// The column of all rows of the set in its order.
  static QStringList column(const RecordSet& set, const QString& name) {
    QStringList values;
    for (int row = 0; row < set.recordCount(); ++row) values += set.valueAt(row, name);
    return values;
  }

  /// In memory where the system offers it: the tests do not wait for a disk.
  static QString folderPattern() {
    const QString memory = QStringLiteral("/dev/shm");
    return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + QStringLiteral("/store-XXXXXX");
  }
  QTemporaryDir m_folder{folderPattern()};
};

}  // namespace store
