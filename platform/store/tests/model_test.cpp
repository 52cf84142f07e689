#include <sqlite3.h>

#include <algorithm>
#include <random>

#include "platform/store/tests/store_fixture.h"

namespace store {
namespace {

const QString kFile = QStringLiteral("保険者2000.mdb");
const QString kName = QStringLiteral("名称");
const QString kNumber = QStringLiteral("番号");

struct ModelRow {
  qint64 id;
  QString name, number;
};

/// The same operations on a plain list: what a record set must show at every step.
struct Model {
  std::vector<ModelRow> rows;
  int position = -1;
  qint64 nextId = 1;

  int count() const { return static_cast<int>(rows.size()); }
  bool onRow() const { return position >= 0 && position < count(); }
  ModelRow& row() { return rows[static_cast<size_t>(position)]; }
};

/// Names from a small alphabet of small letters, so that filters hit and miss.
QString someName(std::mt19937& random) {
  QString name;
  for (unsigned length = random() % 4; length > 0; --length)
    name += QChar(static_cast<char16_t>(u'a' + random() % 3));
  return name.isNull() ? QStringLiteral("") : name;
}

void expectSame(const RecordSet& set, Model& model) {
  ASSERT_EQ(set.recordCount(), model.count());
  ASSERT_EQ(set.bof(), model.position < 0);
  ASSERT_EQ(set.eof(), model.rows.empty() || model.position >= model.count());
  ASSERT_EQ(set.absolutePosition(), model.onRow() ? model.position : -1);
  ASSERT_EQ(set.bookmark(), model.onRow() ? model.row().id : kNoBookmark);
  if (model.onRow()) {
    ASSERT_EQ(set.value(kName), model.row().name);
    ASSERT_EQ(set.value(kNumber), model.row().number);
  } else {
    ASSERT_TRUE(set.value(kName).isNull());
  }
}

class ModelTest : public StoreTest {
 protected:
  void SetUp() override {
    fresh(kFile);
    set = openSet(kFile, QStringLiteral("保険者"));
    sqlite3_exec(set.database()->handle(), "PRAGMA synchronous=OFF", nullptr, nullptr, nullptr);
    ASSERT_EQ(sqlite3_open(QFile::encodeName(path(kFile)).constData(), &other), SQLITE_OK);
    sqlite3_exec(other, "PRAGMA synchronous=OFF", nullptr, nullptr, nullptr);
  }
  void TearDown() override { sqlite3_close(other); }

  /// What another computer writes meanwhile.
  void elsewhere(const QString& statement) const {
    ASSERT_EQ(sqlite3_exec(other, statement.toUtf8().constData(), nullptr, nullptr, nullptr), SQLITE_OK);
  }

  void move(unsigned kind) {
    const int last = model.count() - 1;
    switch (kind) {
      case 0:
        set.moveFirst();
        model.position = last < 0 ? model.position : 0;
        break;
      case 1:
        set.moveLast();
        model.position = last < 0 ? model.position : last;
        break;
      case 2:
        set.moveNext();
        if (!model.rows.empty() && model.position <= last) ++model.position;
        break;
      case 3:
        set.movePrevious();
        if (model.position >= 0) --model.position;
        break;
      default: {
        const int to = static_cast<int>(random() % 12) - 2;
        set.setAbsolutePosition(to);
        if (to >= 0 && to <= last) model.position = to;
      }
    }
  }
  void addRow() {
    const QString name = someName(random);
    ASSERT_TRUE(set.addNew().ok() && set.setValue(kName, name).ok());
    if (random() % 4 == 0) {
      set.cancelUpdate();
      return;
    }
    ASSERT_TRUE(set.update().ok());
    ASSERT_EQ(set.lastModified(), model.nextId);
    model.rows.push_back({model.nextId++, name, QString()});
    if (random() % 2 == 0) {
      set.setBookmark(set.lastModified());
      model.position = model.count() - 1;
    }
  }
  void editRow() {
    ASSERT_EQ(set.edit().ok(), model.onRow());
    if (!model.onRow()) return;
    const QString number = someName(random);
    ASSERT_TRUE(set.setValue(kNumber, number).ok());
    ASSERT_TRUE(set.update().ok());
    model.row().number = number;
  }
  void removeRow() {
    ASSERT_EQ(set.remove().ok(), model.onRow());
    if (!model.onRow()) return;
    model.rows.erase(model.rows.begin() + model.position);
    --model.position;
  }
  void filterRows() {
    const QString part = someName(random);
    const bool descending = random() % 2;
    set.setFilter(QStringLiteral("名称 like '*%1*'").arg(part));
    set.setSort(descending ? QStringLiteral("名称 DESC") : QStringLiteral("名称 ASC"));
    Result<RecordSet> copy = set.openRecordset();
    ASSERT_TRUE(copy.ok());
    std::vector<ModelRow> wanted;
    for (const ModelRow& row : model.rows)
      if (row.name.contains(part)) wanted.push_back(row);
    std::stable_sort(wanted.begin(), wanted.end(), [&](const ModelRow& a, const ModelRow& b) {
      return descending ? a.name > b.name : a.name < b.name;
    });
    ASSERT_EQ(copy->recordCount(), static_cast<int>(wanted.size()));
    for (int row = 0; row < copy->recordCount(); ++row)
      ASSERT_EQ(copy->valueAt(row, QStringLiteral("ID")),
                QString::number(wanted[static_cast<size_t>(row)].id));
  }
  /// Rows of the model that hold both texts, in the order of their numbers.
  std::vector<ModelRow> narrowedModel(const QString& name, const QString& number) const {
    std::vector<ModelRow> wanted;
    for (const ModelRow& row : model.rows)
      if (row.name.contains(name) && !row.number.isNull() && row.number.contains(number))
        wanted.push_back(row);
    std::stable_sort(wanted.begin(), wanted.end(),
                     [](const ModelRow& a, const ModelRow& b) { return a.number < b.number; });
    return wanted;
  }
  Result<RecordSet> narrowedSet(const QString& name, const QString& number) {
    set.setFilter(QStringLiteral("名称 like '*%1*'").arg(name));
    set.setSort(QString());
    Result<RecordSet> copy = set.openRecordset();
    if (!copy) return copy;
    copy->setFilter(QStringLiteral("番号 like '*%1*'").arg(number));
    copy->setSort(QStringLiteral("番号 ASC"));
    return copy->openRecordset();
  }
  /// Criteria after criteria, and a walk over what is left.
  void narrowAndWalk() {
    const QString name = someName(random), number = someName(random);
    const std::vector<ModelRow> wanted = narrowedModel(name, number);
    const Result<RecordSet> copy = narrowedSet(name, number);
    ASSERT_TRUE(copy.ok());
    ASSERT_EQ(copy->recordCount(), static_cast<int>(wanted.size()));
    QHash<QString, QString> numbers;
    ASSERT_TRUE(
        copy->forEach({QStringLiteral("ID"), kNumber},
                      [&](RowViews values) { numbers.insert(values[0].toString(), values[1].toString()); })
            .ok());
    ASSERT_EQ(numbers.size(), copy->recordCount());
    for (int row = 0; row < copy->recordCount(); ++row) {
      const ModelRow& one = wanted[static_cast<size_t>(row)];
      ASSERT_EQ(copy->valueAt(row, QStringLiteral("ID")), QString::number(one.id));
      ASSERT_EQ(numbers.value(QString::number(one.id)), one.number);
    }
  }
  void updateRows() {
    const QString name = someName(random), number = someName(random), end = someName(random);
    Result<RecordSet> copy = narrowedSet(name, number);
    ASSERT_TRUE(copy.ok());
    const std::vector<ModelRow> wanted = narrowedModel(name, number);
    ASSERT_EQ(copy->recordCount(), static_cast<int>(wanted.size()));
    ASSERT_TRUE(copy->updateAll({kName}, kNumber,
                                [&](RowViews values) -> std::optional<Value> {
                                  if (values[0].size() % 2) return std::nullopt;
                                  return values[0].toString() + end;
                                })
                    .ok());
    for (const ModelRow& changed : wanted)
      for (ModelRow& row : model.rows)
        if (row.id == changed.id && row.name.size() % 2 == 0) row.number = row.name + end;
  }
  /// Another computer adds, changes or deletes; the set sees it when it is refreshed.
  void writeElsewhere() {
    const QString name = someName(random);
    const unsigned kind = model.rows.empty() ? 0 : random() % 3;
    const size_t row = model.rows.empty() ? 0 : random() % model.rows.size();
    const qint64 current = model.onRow() ? model.row().id : kNoBookmark;
    if (kind == 0) {
      elsewhere(QStringLiteral("INSERT INTO 保険者 (名称) VALUES ('%1')").arg(name));
      model.rows.push_back({model.nextId++, name, QString()});
    } else if (kind == 1) {
      elsewhere(QStringLiteral("UPDATE 保険者 SET 番号='%1' WHERE ID=%2").arg(name).arg(model.rows[row].id));
      model.rows[row].number = name;
    }
    if (kind == 2) {
      elsewhere(QStringLiteral("DELETE FROM 保険者 WHERE ID=%1").arg(model.rows[row].id));
      model.rows.erase(model.rows.begin() + static_cast<std::ptrdiff_t>(row));
    }
    ASSERT_TRUE(set.refresh().ok());
    model.position = model.rows.empty() ? -1 : 0;
    for (int at = 0; at < model.count(); ++at)
      if (model.rows[static_cast<size_t>(at)].id == current) model.position = at;
  }
  /// A store over a row that changed since it was read is refused, and what was typed stays.
  void storeOverAnothersChange() {
    if (!model.onRow()) return;
    const QString theirs = model.row().number + u'他', ours = someName(random) + u'我';
    ASSERT_TRUE(set.edit().ok() && set.setValue(kNumber, ours).ok());
    elsewhere(QStringLiteral("UPDATE 保険者 SET 番号='%1' WHERE ID=%2").arg(theirs).arg(model.row().id));
    const Done done = set.update();
    ASSERT_FALSE(done.ok());
    ASSERT_TRUE(done.fault().message.contains(QStringLiteral("変更されたため")));
    ASSERT_EQ(set.value(kNumber), ours);
    set.cancelUpdate();
    model.row().number = theirs;
  }
  void findRow() {
    const QString part = someName(random);
    const bool next = random() % 2;
    const QString criteria = QStringLiteral("名称 = '%1'").arg(part);
    ASSERT_TRUE((next ? set.findNext(criteria) : set.findFirst(criteria)).ok());
    int hit = -1;
    for (int row = next ? model.position + 1 : 0; row < model.count() && hit < 0; ++row)
      if (model.rows[static_cast<size_t>(row)].name == part) hit = row;
    ASSERT_EQ(set.noMatch(), hit < 0);
    if (hit >= 0) model.position = hit;
  }

  std::mt19937 random{20241001};
  RecordSet set;
  sqlite3* other = nullptr;
  Model model;
};

TEST_F(ModelTest, RandomOperationsGoAsOnAPlainList) {
  for (int step = 0; step < 2500; ++step) {
    const unsigned kind = random() % 14;
    if (kind < 4)
      move(random() % 5);
    else if (kind < 6)
      addRow();
    else if (kind == 6)
      editRow();
    else if (kind == 7) {
      if (random() % 2) removeRow();
    } else if (kind == 8)
      filterRows();
    else if (kind == 9)
      findRow();
    else if (kind == 10)
      narrowAndWalk();
    else if (kind == 11)
      updateRows();
    else if (kind == 12)
      writeElsewhere();
    else
      storeOverAnothersChange();
    expectSame(set, model);
    if (HasFatalFailure()) FAIL() << "step " << step;
  }
  EXPECT_GT(model.count(), 50);
}

}  // namespace
}  // namespace store
