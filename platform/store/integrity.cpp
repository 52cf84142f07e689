#include "platform/store/integrity.h"

#include "platform/store/database.h"
#include "platform/store/statement.h"

namespace store {

Done checkIntegrity(const QString& path) {
  const Result<std::shared_ptr<Database>> database = Database::openAsItIs(path);
  if (!database) return database.fault();
  Result<Statement> check =
      Statement::prepare((*database)->handle(), path, QStringLiteral("PRAGMA integrity_check(1)"));
  if (!check) return check.fault();
  const Result<bool> row = check->step();
  if (!row) return row.fault();
  const QString answer = check->text(0);
  if (answer != u"ok") return Fault{answer};
  return {};
}

}  // namespace store
