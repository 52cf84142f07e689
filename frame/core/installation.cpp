#include "frame/core/installation.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMap>
#include <algorithm>

#include "frame/core/csv_table.h"
#include "frame/core/prefecture.h"
#include "frame/core/run_state.h"
#include "platform/store/bulk.h"
#include "platform/store/catalogue.h"
#include "platform/store/database.h"
#include "platform/store/tables/fees.h"
#include "platform/text/whole_file.h"

namespace frame {
namespace {

using text::Done;
using text::Fault;
using text::Result;

/// A file whose fresh copy starts filled from a shipped table; columns that the file lacks are left out.
struct FilledFile {
  const char16_t* file;
  const char16_t* source;
};
constexpr FilledFile kDictionaries[] = {{u"Keiraku2000.mdb", u"acupoints.csv"},
                                        {u"CLmoji2000.mdb", u"phrases1.csv"},
                                        {u"CL2moji2000.mdb", u"phrases2.csv"}};
constexpr char16_t kFees[] = u"fees/editions.csv";
constexpr const char16_t* kFeeTable = fees::table.name();
constexpr QStringView kFirstDay = u"effective_from";

/// Whether the user fills the file: the patients, visits, claims and the other registers. The dictionaries
/// and the fee files are shipped filled.
bool isRegister(const store::TableRow& row) {
  const auto fills = [&](const FilledFile& dictionary) {
    return QStringView(dictionary.file) == QStringView(row.file);
  };
  return QStringView(row.table) != kFeeTable && std::ranges::none_of(kDictionaries, fills);
}

class Layout {
 public:
  Layout(QString program, QString data, QString templates)
      : m_program(std::move(program)), m_data(std::move(data)), m_templates(std::move(templates)) {}

  Result<QStringList> run() {
    for (const auto step :
         {&Layout::folders, &Layout::databases, &Layout::fees, &Layout::settings, &Layout::shippedFiles})
      if (const Done done = (this->*step)(); !done) return done.fault();
    return m_made;
  }

 private:
  QString beside(const QString& name) const { return m_program + u'/' + name; }
  QString shipped(const QString& name) const { return m_data + u'/' + name; }

  Done folders();
  Done databases();
  Done createFilled(const QString& file);
  Done fill(const QString& path, const QString& file, const QString& source);
  Done fees();
  QStringList feePaths(const QString& file) const;
  Done settings();
  Done shippedFiles();
  Done copyAll(const QString& from, const QStringList& names, const QString& to);

  QString m_program, m_data, m_templates;
  QStringList m_made;
};

Done Layout::folders() {
  for (const char* name : {"", "GDATA", "backup"}) {
    const QString folder = beside(QLatin1String(name));
    if (!QDir().mkpath(folder))
      return Fault{QStringLiteral("フォルダ「%1」を作ることができません。").arg(folder)};
  }
  return {};
}

/// A folder with settings has been worked in: a register that is missing there is lost or lies elsewhere. An
/// empty one in its place would hide that, so it stays missing and the screens report it.
Done Layout::databases() {
  const bool workedIn = QFileInfo::exists(settingsPath(m_program));
  for (const store::TableRow& row : store::catalogue()) {
    const QString file = QString::fromUtf16(row.file);
    if (QFileInfo::exists(beside(file)) || (workedIn && isRegister(row))) continue;
    if (const Done made = createFilled(file); !made) return made;
    m_made += file;
  }
  return {};
}

/// A file gets its name when it is whole: one that was interrupted while it was filled is made again.
Done Layout::createFilled(const QString& file) {
  const QString part = beside(file + QStringLiteral(".part"));
  QFile::remove(part);
  if (const Done made = store::createFresh(part, file); !made) return made;
  for (const FilledFile& dictionary : kDictionaries)
    if (file == QStringView(dictionary.file))
      if (const Done filled = fill(part, file, QString::fromUtf16(dictionary.source)); !filled) return filled;
  if (!QFile::rename(part, beside(file)))
    return Fault{QStringLiteral("「%1」を作ることができません。").arg(file)};
  return {};
}

Done Layout::fill(const QString& path, const QString& file, const QString& source) {
  const Result<CsvTable> table = readCsvTable(shipped(source));
  if (!table) return table.fault();
  QList<QHash<QString, QString>> rows;
  for (const QStringList& values : table->rows) {
    QHash<QString, QString> row;
    for (int column = 0; column < values.size(); ++column) row.insert(table->columns[column], values[column]);
    rows += row;
  }
  return store::addRows(path, QString::fromUtf16(store::tableOfFile(file)->table), rows);
}

/// The shipped editions name their file, the ID and the first day, and then fees. A file or a fee that the
/// catalogue does not know would be left out: the build, which lays out a folder, fails instead.
Done checkEditions(const CsvTable& editions) {
  const auto unknown = [](const QString& what) {
    return Fault{QStringLiteral("%1: unknown to the catalogue: %2").arg(QString::fromUtf16(kFees), what)};
  };
  if (editions.columns.value(0) != u"file") return unknown(editions.columns.value(0));
  for (const QStringList& row : editions.rows) {
    const store::TableRow* file = store::tableOfFile(row.value(0) + QStringLiteral(".mdb"));
    if (!file || QStringView(file->table) != kFeeTable) return unknown(row.value(0));
    for (const QString& column : editions.columns.mid(1))
      if (column != kFirstDay && !store::findColumn(*file, column)) return unknown(column);
  }
  return {};
}

/// The places of a fee file: beside the program, and where the settings have it.
QStringList Layout::feePaths(const QString& file) const {
  QStringList paths{beside(file)};
  const int entry = store::tableOfFile(file)->folderEntry;
  RunState run;
  if (entry < 0 || !readRun(m_program, run)) return paths;  // settings that cannot be read name no place
  const QString& chosen = run.folders[static_cast<size_t>(entry)];
  if (chosen != paths.front()) paths += chosen;
  return paths;
}

/// Adds to each fee file the editions that it lacks: those with a higher ID than any that it has. A fee that
/// the edition had not is NULL. A file that cannot be read is left alone: the screens that need it report it
/// by name, the others work. So is one at another place that cannot be written just now; the next layout adds
/// to it.
Done Layout::fees() {
  const Result<CsvTable> table = readCsvTable(shipped(QString::fromUtf16(kFees)));
  if (!table) return table.fault();
  if (const Done known = checkEditions(*table); !known) return known;
  QMap<QString, QList<QHash<QString, QString>>> editions;
  for (const QStringList& values : table->rows) {
    QHash<QString, QString> row;
    for (int column = 1; column < values.size(); ++column)
      if (!values[column].isEmpty() && table->columns[column] != kFirstDay)
        row.insert(table->columns[column], values[column]);
    editions[values[0] + QStringLiteral(".mdb")] += row;
  }
  const QString feeTable = QString::fromUtf16(kFeeTable);
  for (auto edition = editions.cbegin(); edition != editions.cend(); ++edition) {
    for (const QString& path : feePaths(edition.key())) {
      if (!store::Database::open(path)) continue;
      const Result<int> added = store::addNewerRows(path, feeTable, *edition);
      if (!added && path == beside(edition.key())) return added.fault();
      if (added && *added > 0 && !m_made.contains(edition.key())) m_made += edition.key();
    }
  }
  return {};
}

Done Layout::settings() {
  if (!QFileInfo::exists(settingsPath(m_program))) {
    if (const Done written = writeSettingsFile(settingsPath(m_program), freshSettings()); !written)
      return written;
    m_made += QFileInfo(settingsPath(m_program)).fileName();
  }
  const QString record = QString::fromUtf16(kPrefectureFile);
  if (QFileInfo::exists(beside(record))) return {};
  m_made += record;
  return text::writeWholeFile(beside(record), "01\n");
}

Done Layout::copyAll(const QString& from, const QStringList& names, const QString& to) {
  for (const QString& name : names) {
    const Result<bool> copied = bringUpToDate(from + u'/' + name, to + u'/' + name);
    if (!copied) return copied.fault();
    if (*copied) m_made += name;
  }
  return {};
}

Done Layout::shippedFiles() {
  const QStringList forms = QDir(m_templates).entryList({QStringLiteral("*.PRP")}, QDir::Files);
  if (const Done done = copyAll(m_templates, forms, m_program); !done) return done;
  QStringList files = QDir(m_data).entryList(QDir::Files);
  for (const FilledFile& dictionary : kDictionaries) files.removeAll(QString::fromUtf16(dictionary.source));
  files.removeIf([](const QString& name) { return name.endsWith(u".md"); });
  if (const Done done = copyAll(m_data, files, m_program); !done) return done;
  QStringList pictures = QDir(shipped(QStringLiteral("GDATA"))).entryList(QDir::Files);
  pictures.removeIf(  // the user's own charts lie in this folder: what is there stays
      [&](const QString& name) { return QFileInfo::exists(beside(QStringLiteral("GDATA/") + name)); });
  return copyAll(shipped(QStringLiteral("GDATA")), pictures, beside(QStringLiteral("GDATA")));
}

}  // namespace

Result<bool> bringUpToDate(const QString& shipped, const QString& place) {
  const QFileInfo source(shipped), standing(place);
  if (standing.exists() && standing.size() == source.size() &&
      standing.lastModified() >= source.lastModified())
    return false;
  const Result<QByteArray> content = text::readWholeFile(shipped);
  if (!content) return content.fault();
  if (const Done written = text::writeWholeFile(place, *content); !written) return written.fault();
  return true;
}

Result<QStringList> layOut(const QString& programFolder, const QString& dataFolder,
                           const QString& templatesFolder) {
  return Layout(programFolder, dataFolder, templatesFolder).run();
}

}  // namespace frame
