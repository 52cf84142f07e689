// Printing: claims from their stored rows through the mapping and the engine, and a floor to hold it
// against: the toolkit's own PDF writer drawing the same texts and frame lines.

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

#include "claims/core/claim_file.h"
#include "platform/report/prp_loader.h"
#include "platform/report/recording_operations.h"
#include "platform/report/report_engine.h"
#include "printing/core/claim_form_900.h"
#include "printing/core/claim_job.h"
#include "tools/bench/claim_rows.h"
#include "tools/bench/commands.h"
#include "tools/bench/print_floor.h"
#include "tools/bench/read_back.h"

namespace bench {
namespace {

constexpr char16_t kScreen[] = u"レセプト印刷2024";
constexpr char16_t kTemplate[] = u"HARI_900.PRP";

int failed(const QString& text) {
  std::fprintf(stderr, "%s\n", qPrintable(text));
  return 1;
}

/// The stored claims, opened as the month run opens them.
class Month {
 public:
  Month(claims::ClaimFile file, StoredClaims stored) : m_file(std::move(file)), m_stored(std::move(stored)) {}

  int size() const { return static_cast<int>(m_stored.ids.size()); }
  /// Reads a claim's rows.
  printing::PrintSource source(int index) const {
    printing::PrintSource source;
    const auto claim = m_file.read(m_stored.ids[index]);
    if (claim) source.claim = claim.value();
    source.edition = printing::Edition::From202410;
    source.prefecture = frame::Prefecture::Hokkaido;
    source.profile[frame::slot::kRegistration] = QStringLiteral("例示第０００１号");
    source.profile[frame::slot::kHealthOffice] = QStringLiteral("施術所所在地");
    return source;
  }

 private:
  claims::ClaimFile m_file;
  StoredClaims m_stored;
};

const frame::EraDates& eraDates() {
  static const text::FixedClock clock(QDate(2024, 11, 5));
  static const frame::EraDates dates(frame::EraCapability::Supported, clock);
  return dates;
}

report::OpenSink fileSinks(const QString& path) {
  return [path](const report::PrinterChoice&) { return std::make_unique<report::FileSink>(path); };
}

/// All claims of the month as pages of one document; milliseconds, or -1.
double printPages(const Month& month, const QString& path) {
  QElapsedTimer timer;
  timer.start();
  report::ReportEngine engine(programFolder(), fileSinks(path));
  printing::PrintJob job;
  job.title = printing::claimTitle(printing::PrintKind::Acupuncture);
  job.pages = month.size();
  job.chooseTemplate = [](int) { return QString::fromUtf16(kTemplate); };
  job.fill = [&](printing::ReportFields& fields, int page) {
    printing::fillClaim900(fields, month.source(page), eraDates());
  };
  if (printing::runPrint(engine, job) != printing::RunEnd::Printed) return -1;
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// Items that a page prints, with their texts ("" for a mark).
using Sheet = QHash<QString, QString>;

/// What each page prints, taken off the mapping outside of the measured time.
QVector<Sheet> sheets(const Month& month, int count) {
  QVector<Sheet> pages;
  for (int i = 0; i < count; ++i) {
    report::RecordingOperations recorder;
    printing::ReportFields fields(recorder);
    printing::fillClaim900(fields, month.source(i), eraDates());
    Sheet page;
    for (auto item = recorder.items().begin(); item != recorder.items().end(); ++item)
      if (item->visible) page.insert(item.key(), item->text);
    pages << page;
  }
  return pages;
}

/// The texts of the pages that the form has an item for.
QVector<Page> pagesOn(const report::Form& form, const QVector<Sheet>& sheets) {
  QVector<Page> pages;
  for (const auto& sheet : sheets) {
    Page page;
    for (auto item = sheet.begin(); item != sheet.end(); ++item) {
      const int at = form.find(item.key());
      if (at >= 0 && form.items[static_cast<size_t>(at)].kind != report::Kind::Choice &&
          !item.value().isEmpty())
        page << PageText{&form.items[static_cast<size_t>(at)], item.value()};
    }
    pages << page;
  }
  return pages;
}

QVector<QStringList> textsOf(const QVector<Page>& pages) {
  QVector<QStringList> texts;
  for (const Page& page : pages) {
    QStringList lines;
    for (const PageText& text : page) lines << text.text;
    texts << lines;
  }
  return texts;
}

text::Result<Month> makeMonth(const QString& folder, int count) {
  auto stored = storeClaims(folder, count);
  if (!stored) return stored.fault();
  auto file = claims::ClaimFile::open(stored->first, stored->second);
  if (!file) return file.fault();
  return Month(std::move(file.value()), std::move(stored.value()));
}

/// Milliseconds that the toolkit's PDF writer takes for one document of the same items: the mean of up to 50
/// documents, each a file of its own.
double jobsFloor(const report::Form& form, const Month& month, const QString& folder) {
  constexpr int kDocuments = 50;
  const QVector<Page> pages = pagesOn(form, sheets(month, std::min(month.size(), kDocuments)));
  double spent = 0;
  for (int i = 0; i < pages.size(); ++i)
    spent += drawFloor(form, {pages[i]}, QDir(folder).filePath(QStringLiteral("floor_%1.pdf").arg(i)));
  return spent / static_cast<double>(pages.size());
}

void tellSizes(const QString& pdf, const QString& floor, int pages) {
  const double ours = static_cast<double>(QFileInfo(pdf).size()),
               bare = static_cast<double>(QFileInfo(floor).size());
  figure("print_bytes_per_page", ours / pages, "bytes");
  figure("print_floor_bytes_per_page", bare / pages, "bytes");
  figure("print_bytes_ratio", ours / bare, "x");
}

}  // namespace

int print(const QStringList& arguments) {
  const int count = arguments.value(0).toInt();
  const QString path = arguments.value(1);
  if (count < 1 || path.isEmpty()) return failed(QStringLiteral("usage: bench print N OUT.pdf"));
  const QTemporaryDir folder;
  const auto month = makeMonth(folder.path(), count);
  if (!month) return failed(month.fault().message);
  const auto form = report::loadForm(programFolder(), QString::fromUtf16(kTemplate));
  if (!form) return failed(form.fault().message);

  const double spent = printPages(month.value(), path);
  if (spent < 0) return failed(QStringLiteral("nothing was printed"));
  const auto sheet = sheets(month.value(), month->size());
  const QVector<Page> pages = pagesOn(*form.value(), sheet);
  const QString floorPath = folder.filePath(QStringLiteral("floor.pdf"));
  const double floor = drawFloor(*form.value(), pages, floorPath);

  qint64 items = 0;
  for (const auto& page : sheet) items += page.size();
  figure("print_pages", count, "pages");
  figure("print_items_per_page", static_cast<double>(items) / count, "items");
  figure("print_per_page", spent / count, "ms");
  figure("print_floor_per_page", floor / count, "ms");
  figure("print_time_ratio", spent / floor, "x");
  tellSizes(path, floorPath, count);
  figure("print_texts_read_back", readBack(path, textsOf(pages)), "%");
  return 0;
}

int jobs(const QStringList& arguments) {
  const int count = arguments.value(0).toInt();
  const QDir target(arguments.value(1));
  if (count < 1 || arguments.size() < 2 || !target.mkpath(QStringLiteral(".")))
    return failed(QStringLiteral("usage: bench jobs N DIR"));
  const QTemporaryDir folder;
  const auto month = makeMonth(folder.path(), count);
  if (!month) return failed(month.fault().message);
  const auto form = report::loadForm(programFolder(), QString::fromUtf16(kTemplate));
  if (!form) return failed(form.fault().message);

  QElapsedTimer timer;
  timer.start();
  int next = 0;
  report::ReportEngine engine(programFolder(), [&](const report::PrinterChoice&) {
    return std::make_unique<report::FileSink>(
        target.filePath(QStringLiteral("claim_%1.pdf").arg(++next, 5, 10, QLatin1Char('0'))));
  });
  for (int i = 0; i < count; ++i) {
    const printing::PrintSource source = month->source(i);
    if (printing::runPrint(engine, printing::claimJob(source, printing::PrintScreen::General2024,
                                                      eraDates())) != printing::RunEnd::Printed)
      return failed(QStringLiteral("nothing was printed"));
  }
  const double spent = static_cast<double>(timer.nsecsElapsed()) / 1e6;
  const double floor = jobsFloor(*form.value(), month.value(), folder.path());
  qint64 bytes = 0, largest = 0;
  for (const QFileInfo& file : target.entryInfoList({QStringLiteral("claim_*.pdf")})) {
    bytes += file.size();
    largest = std::max(largest, file.size());
  }
  figure("jobs_documents", count, "documents");
  figure("jobs_per_document", spent / count, "ms");
  figure("jobs_floor_per_document", floor, "ms");
  figure("jobs_time_ratio", spent / count / floor, "x");
  figure("jobs_bytes_per_document", static_cast<double>(bytes) / count, "bytes");
  figure("jobs_largest_document", static_cast<double>(largest), "bytes");
  return 0;
}

}  // namespace bench
