// The tables of the eras against each other, the fee files, the catalogue and the documentation.
#include <gtest/gtest.h>

#include <QFile>
#include <QSet>

#include "claims/core/amount_item_checks.h"
#include "claims/core/claim_store.h"
#include "claims/core/era.h"
#include "claims/core/fee_files.h"
#include "platform/store/catalogue.h"

namespace claims {
namespace {

QString textOfFile(const char* path) {
  QFile file(QStringLiteral(SOURCE_FOLDER "/") + QString::fromUtf8(path));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
  return QString::fromUtf8(file.readAll());
}

std::vector<AmountItem> needleItems() {
  const auto items = eras().back().acupuncture.items;
  return {items.begin(), items.end()};
}
std::span<const RecordVersion> needleVersions() { return eras().back().acupuncture.versions; }

AmountItem& itemOf(std::vector<AmountItem>& items, int field) {
  return *std::ranges::find_if(items, [&](const AmountItem& item) { return item.field.first == field; });
}

TEST(EraTable, FollowEachOtherAndEndWithAnEraThatStores) {
  const EraTable table = eras();
  for (size_t i = 1; i < table.size(); ++i) EXPECT_LT(table[i - 1].from, table[i].from);
  EXPECT_FALSE(table.back().previewOnly);
  EXPECT_EQ(table.front().from, rule::kAlways);
}

TEST(EraTable, StepsRuleThePreviewAlone) {
  const QDate may(2018, 5, 1), june(2018, 6, 1), october(2024, 10, 1);
  EXPECT_EQ(eraOf(may, Path::Preview)->regime, Regime::Steps);
  EXPECT_EQ(eraOf(may, Path::Store)->regime, Regime::TwoBand);
  EXPECT_EQ(eraOf(june, Path::Preview)->regime, Regime::TwoBand);
  EXPECT_EQ(eraOf(october.addMonths(-1), Path::Store)->regime, Regime::TwoBand);
  EXPECT_EQ(eraOf(october, Path::Store)->regime, Regime::Visits);
  EXPECT_EQ(eraOf(std::nullopt, Path::Store), nullptr);
}

TEST(EraTable, EveryMarkIsUsedOnce) {
  QSet<QString> marks;
  int versions = 0;
  for (const Era& era : eras())
    for (const KindRules* rules : {&era.acupuncture, &era.massage})
      for (const RecordVersion& version : rules->versions) {
        marks.insert(QString::fromUtf16(version.mark));
        ++versions;
      }
  EXPECT_GE(versions, 2);
  EXPECT_EQ(marks.size(), versions);
}

TEST(EraTable, TheColumnsOfItemsAreClearedBeforeAStore) {
  QSet<QString> cleared, used;
  for (const store::Column& column : calculatedColumns()) cleared.insert(column);
  int columns = 0;
  for (const AmountItem& item : eras()[1].acupuncture.items)
    for (const auto& column : {item.columns.amount, item.columns.count}) {
      if (!column) continue;
      EXPECT_TRUE(cleared.contains(column->text())) << column->text().toStdString();
      used.insert(*column);
      ++columns;
    }
  EXPECT_EQ(columns, 19);  // two for each of eight treatments, 初回費用, two bands of visits
  EXPECT_EQ(used.size(), columns);
}

TEST(EraTable, AWrongRowIsNotSound) {
  using Change = void (*)(std::vector<AmountItem>&);
  const struct {
    const char* what;
    Change change;
  } rows[] = {
      {"a field filled twice", [](auto& items) { itemOf(items, 37).field.first = 34; }},
      {"a gap", [](auto& items) { itemOf(items, 48).field.first = 49; }},
      {"a line shortened", [](auto& items) { itemOf(items, 40).field.parts = RecordFields::Amount; }},
      {"a box filled twice", [](auto& items) { itemOf(items, 40).boxes = lineBoxes(37); }},
      {"a cell of one item", [](auto& items) { itemOf(items, 4).boxes.alone = 0; }},
      {"a cell of three items", [](auto& items) { itemOf(items, 16).boxes.alone = 51; }},
      {"middle boxes that are others'", [](auto& items) { itemOf(items, 16).boxes.alone = 58; }},
      {"a box without a field", [](auto& items) { items[0].field = {}; }},
      {"an unknown fee", [](auto& items) { itemOf(items, 34).fee = static_cast<Fee>(kFees.size()); }},
      {"a tick of another table", [](auto& items) { itemOf(items, 37).tick = fees::specialArea; }},
      {"a charge without a fee", [](auto& items) { itemOf(items, 34).fee = {}; }},
      {"an item that neither counts nor is a figure",
       [](auto& items) { itemOf(items, 34).counter = nullptr; }},
      {"an item without a label", [](auto& items) { itemOf(items, 34).label = nullptr; }},
      {"a later item without a version",
       [](auto& items) {
         itemOf(items, 46).from = {2031, 6};
       }},
  };
  ASSERT_TRUE(isSound(needleItems(), needleVersions()));
  for (const auto& row : rows) {
    auto items = needleItems();
    row.change(items);
    EXPECT_FALSE(isSound(items, needleVersions())) << row.what;
  }
  const RecordVersion twice[] = {needleVersions()[0], {needleVersions()[0].mark, {2031, 6}}};
  EXPECT_FALSE(isSound(needleItems(), twice)) << "a mark used twice";
}

TEST(FeeTable, EveryFileThatIsPickedIsMadeAndShipped) {
  const QString shipped = textOfFile("data/fees/editions.csv");
  for (const FeeSet set : {FeeSet::National, FeeSet::Osaka}) {
    ASSERT_FALSE(feeFileRows(set).empty());
    for (const FeeFileRow& row : feeFileRows(set)) {
      const QString file = QString::fromUtf16(row.file);
      EXPECT_NE(store::tableOfFile(file), nullptr) << file.toStdString();
      EXPECT_TRUE(shipped.contains(u'\n' + file.chopped(4) + u',')) << file.toStdString();
    }
  }
}

/// "4-6", "1": the fields of an item.
QString fieldText(const RecordFields& field) {
  const QString first = QString::number(field.first);
  return field.size() == 1 ? first : first + u'-' + QString::number(field.first + field.size() - 1);
}

QString boxText(const AmountBoxes& boxes) {
  QStringList numbers;
  for (const int box : {boxes.unit, boxes.count, boxes.amount})
    if (box != 0) numbers << QString::number(box);
  const QString text = numbers.join(QStringLiteral(", "));
  return boxes.alone == 0 ? text
                          : text + QStringLiteral("; alone %1-%2").arg(boxes.alone).arg(boxes.alone + 2);
}

QString feeText(const AmountItem& item) {
  QStringList columns;
  for (const Fee fee : item.fee.fees()) columns << feeColumn(fee);
  if (item.tick) columns << QStringLiteral("if ") + item.tick->text();
  return columns.join(QStringLiteral(", "));
}

/// The table of a version as docs/amount-record.md shows it.
QString documentOf(const KindRules& rules, const RecordVersion& version) {
  std::vector<const AmountItem*> items;
  for (const AmountItem& item : rules.items)
    if (version.records(item)) items.push_back(&item);
  std::ranges::sort(items, {}, [](const AmountItem* item) { return item->field.first; });
  QString text =
      QStringLiteral("## %1 (%2 fields)\n\n| Fields | Item | Fee columns | Boxes |\n|---|---|---|---|\n")
          .arg(QString::fromUtf16(version.mark))
          .arg(lastField(rules.items, version) + 1);
  for (const AmountItem* item : items)
    text += QStringLiteral("| %1 | %2 | %3 | %4 |\n")
                .arg(fieldText(item->field),
                     QString::fromUtf16(item->label).replace(QStringLiteral("%1"), QStringLiteral("n")),
                     feeText(*item), boxText(item->boxes));
  return text;
}

TEST(AmountDocument, ShowsEveryVersionOfTheRecord) {
  const QString document = textOfFile("docs/amount-record.md");
  for (const Era& era : eras())
    for (const KindRules* rules : {&era.acupuncture, &era.massage})
      for (const RecordVersion& version : rules->versions) {
        const QString text = documentOf(*rules, version);
        EXPECT_TRUE(document.contains(text)) << "docs/amount-record.md should hold:\n" << text.toStdString();
      }
}

}  // namespace
}  // namespace claims
