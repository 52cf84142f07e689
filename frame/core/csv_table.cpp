#include "frame/core/csv_table.h"

#include <QFileInfo>

#include "platform/text/quoted_list.h"
#include "platform/text/whole_file.h"

namespace frame {

using namespace Qt::Literals::StringLiterals;

text::Result<CsvTable> readCsvTable(const QString& path) {
  const text::Result<QByteArray> bytes = text::readWholeFile(path);
  if (!bytes) return bytes.fault();
  QString content = QString::fromUtf8(*bytes);
  if (content.startsWith(QChar::ByteOrderMark)) content.remove(0, 1);
  QList<QStringList> records = text::readQuotedRecords(content);
  CsvTable table;
  if (!records.isEmpty()) table.columns = records.takeFirst();
  for (const QStringList& record : records) {
    if (record.size() != table.columns.size())
      return text::Fault{u"「%1」の%2行目の項目の数が正しくありません。"_s.arg(
          QFileInfo(path).fileName(), QString::number(table.rows.size() + 2))};
    table.rows += record;
  }
  return table;
}

}  // namespace frame
