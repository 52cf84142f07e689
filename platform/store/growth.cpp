#include "platform/store/growth.h"

#include <QStringList>
#include <algorithm>
#include <functional>
#include <vector>

#include "platform/store/catalogue.h"
#include "platform/store/database.h"
#include "platform/store/engine.h"

namespace store {
namespace {

/// What each run adds: the added columns of the file's first table in the catalogue.
constexpr const char16_t* kFiles[] = {u"臨床QV2000N.mdb", u"カルテ2データ2000.mdb", u"保険申請2000_2.mdb",
                                      u"保険申請2000_2.mdb"};

bool ofSecondClaimRun(const ColumnRow& column) {
  const QStringView name(column.name);
  return name.size() == 2 && (name[0] == u'h' || name[0] == u'm') && name[1] >= u'1' && name[1] <= u'4';
}

bool belongs(const ColumnRow& column, GrowthRun run) {
  if (!column.added) return false;
  if (run == GrowthRun::Claim1) return !ofSecondClaimRun(column);
  return run != GrowthRun::Claim2 || ofSecondClaimRun(column);
}

const TableRow& tableOf(GrowthRun run) {
  return *tableOfFile(QString::fromUtf16(kFiles[static_cast<size_t>(run)]));
}

/// A column that a table of the file lacks.
struct Missing {
  QString table;
  const ColumnRow* column;
};
using MissingColumns = std::vector<Missing>;

template <class Wanted>
void appendMissing(MissingColumns& missing, const TableSchema& schema, const TableRow& table,
                   const Wanted& wanted) {
  for (const ColumnRow& column : table.columns)
    if (wanted(column) && schema.find(QString::fromUtf16(column.name)) < 0)
      missing.push_back({schema.table(), &column});
}

/// The columns of the run that the file lacks, as it is now.
Result<MissingColumns> missingOfRun(Engine& engine, GrowthRun run) {
  const Result<std::shared_ptr<const TableSchema>> schema =
      engine.schema(QString::fromUtf16(tableOf(run).table));
  if (!schema) return schema.fault();
  MissingColumns missing;
  appendMissing(missing, **schema, tableOf(run),
                [run](const ColumnRow& column) { return belongs(column, run); });
  return missing;
}

/// The catalogue's row of a table in a file of any name: of those that are called so, the one with which it
/// has the most columns in common. None where the catalogue has no table of the name.
const TableRow* catalogueRowOf(const TableSchema& schema) {
  const TableRow* best = nullptr;
  qsizetype mostCommon = -1;
  for (const TableRow& row : catalogue()) {
    if (schema.table() != QStringView(row.table)) continue;
    const qsizetype common = std::ranges::count_if(row.columns, [&](const ColumnRow& column) {
      return schema.find(QString::fromUtf16(column.name)) >= 0;
    });
    if (common > mostCommon) best = &row;
    mostCommon = std::max(mostCommon, common);
  }
  return best;
}

/// The columns of no run that the tables of the file lack, as it is now.
Result<MissingColumns> missingOfNoRun(Engine& engine) {
  const Result<QStringList> tables = engine.tables();
  if (!tables) return tables.fault();
  MissingColumns missing;
  for (const QString& table : *tables) {
    const Result<std::shared_ptr<const TableSchema>> schema = engine.schema(table);
    if (!schema) return schema.fault();
    if (const TableRow* row = catalogueRowOf(**schema))
      appendMissing(missing, **schema, *row, [](const ColumnRow& column) { return !column.added; });
  }
  return missing;
}

/// Adds what is missing in one transaction, or nothing. Asked again under the lock: another computer may be
/// growing the same file.
Done addAll(Engine& engine, const std::function<Result<MissingColumns>()>& stillMissing) {
  const Done done = engine.write([&]() -> Done {
    const Result<MissingColumns> missing = stillMissing();
    if (!missing) return missing.fault();
    for (const auto& [table, column] : *missing)
      if (const Done added = engine.addColumn(table, QString::fromUtf16(column->name), column->type); !added)
        return added;
    return {};
  });
  engine.forget();  // also of what was rolled back
  return done;
}

}  // namespace

Result<bool> needsGrowth(const QString& path, GrowthRun run) {
  const Result<std::shared_ptr<Database>> database = Database::open(path);
  if (!database) return database.fault();
  const Result<MissingColumns> lacks = missingOfRun((*database)->engine(), run);
  if (!lacks) return lacks.fault();
  return !lacks->empty();
}

Done grow(const QString& path, GrowthRun run) {
  const Result<bool> needed = needsGrowth(path, run);
  if (!needed) return needed.fault();
  if (!*needed) return {};
  const Result<std::shared_ptr<Database>> database = Database::open(path);
  if (!database) return database.fault();
  Engine& engine = (*database)->engine();
  return addAll(engine, [&] { return missingOfRun(engine, run); });
}

Done growToCatalogue(Engine& engine) {
  const Result<MissingColumns> missing = missingOfNoRun(engine);
  if (!missing) return missing.fault();
  // A file that may only be read is read without them; a store is refused by the file's name.
  if (missing->empty() || engine.mayOnlyRead()) return {};
  return addAll(engine, [&] { return missingOfNoRun(engine); });
}

}  // namespace store
