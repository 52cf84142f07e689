#include "platform/store/growth.h"

#include <QStringList>

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

/// The columns of the run that the file lacks, as it stands now.
Result<std::vector<const ColumnRow*>> missing(Engine& engine, GrowthRun run) {
  const Result<std::shared_ptr<const TableSchema>> schema =
      engine.schema(QString::fromUtf16(tableOf(run).table));
  if (!schema) return schema.fault();
  std::vector<const ColumnRow*> columns;
  for (const ColumnRow& column : tableOf(run).columns)
    if (belongs(column, run) && (*schema)->find(QString::fromUtf16(column.name)) < 0)
      columns.push_back(&column);
  return columns;
}

}  // namespace

Result<bool> needsGrowth(const QString& path, GrowthRun run) {
  const Result<std::shared_ptr<Database>> database = Database::open(path);
  if (!database) return database.fault();
  const Result<std::vector<const ColumnRow*>> lacks = missing((*database)->engine(), run);
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
  const Done done = engine.write([&]() -> Done {
    // Asked again under the lock: another computer may be growing the same file.
    const Result<std::vector<const ColumnRow*>> lacks = missing(engine, run);
    if (!lacks) return lacks.fault();
    for (const ColumnRow* column : *lacks) {
      const Done added = engine.addColumn(QString::fromUtf16(tableOf(run).table),
                                          QString::fromUtf16(column->name), column->type);
      if (!added) return added;
    }
    return {};
  });
  engine.forget();  // also of what was rolled back
  return done;
}

}  // namespace store
