#include "platform/report/spooler.h"

#include <cups/cups.h>

#include <algorithm>
#include <span>

#include "platform/report/form.h"

namespace report {

namespace {

/// The printers that the print service names, freed at the end.
class Destinations {
 public:
  Destinations() : m_count(cupsGetDests2(CUPS_HTTP_DEFAULT, &m_all)) {}
  ~Destinations() { cupsFreeDests(m_count, m_all); }
  Destinations(const Destinations&) = delete;
  Destinations& operator=(const Destinations&) = delete;

  std::span<cups_dest_t> all() const { return {m_all, size_t(m_count)}; }

 private:
  cups_dest_t* m_all = nullptr;
  int m_count = 0;
};

using Destination = std::unique_ptr<cups_dest_t, decltype([](cups_dest_t* dest) { cupsFreeDests(1, dest); })>;

/// One printer by name, the default one for an empty name: asking for one is much faster than listing what
/// is in the network.
Destination find(const QString& name) {
  const QByteArray bytes = name.toUtf8();
  return Destination(
      cupsGetNamedDest(CUPS_HTTP_DEFAULT, name.isEmpty() ? nullptr : bytes.constData(), nullptr));
}

using DestInfo = std::unique_ptr<cups_dinfo_t, decltype([](cups_dinfo_t* info) { cupsFreeDestInfo(info); })>;

DestInfo infoOf(cups_dest_t* dest) { return DestInfo(cupsCopyDestInfo(CUPS_HTTP_DEFAULT, dest)); }

class Options {
 public:
  ~Options() { cupsFreeOptions(m_count, m_all); }
  void add(const char* name, const QString& value) {
    m_count = cupsAddOption(name, value.toUtf8().constData(), m_count, &m_all);
  }
  int count() const { return m_count; }
  cups_option_t* all() const { return m_all; }

 private:
  cups_option_t* m_all = nullptr;
  int m_count = 0;
};

text::Fault notTaken(const QString& printer) {
  return {QStringLiteral("プリンタ「%1」が印刷を受け付けませんでした。プリンタを確認してください。")
              .arg(printer)};
}

void addChoice(Options& options, const PrinterChoice& choice) {
  if (choice.copies > 1) options.add(CUPS_COPIES, QString::number(choice.copies));
  if (!choice.media.isEmpty()) options.add(CUPS_MEDIA, choice.media);
  if (choice.sides != Sides::AsPrinter) {
    const char* sides[] = {"", CUPS_SIDES_ONE_SIDED, CUPS_SIDES_TWO_SIDED_PORTRAIT,
                           CUPS_SIDES_TWO_SIDED_LANDSCAPE};
    options.add(CUPS_SIDES, QString::fromLatin1(sides[int(choice.sides)]));
  }
  if (choice.orientation == Orientation::Portrait)
    options.add(CUPS_ORIENTATION, QStringLiteral(CUPS_ORIENTATION_PORTRAIT));
  if (choice.orientation == Orientation::Landscape)
    options.add(CUPS_ORIENTATION, QStringLiteral(CUPS_ORIENTATION_LANDSCAPE));
}

}  // namespace

std::vector<PrinterEntry> listPrinters() {
  std::vector<PrinterEntry> printers;
  const Destinations destinations;
  for (const cups_dest_t& dest : destinations.all()) {
    // A queue with the name of the file printer cannot be distinguished from it, and writes PDF files, too.
    if (dest.instance || QString::fromUtf8(dest.name) == kFilePrinter) continue;
    const char* info = cupsGetOption("printer-info", dest.num_options, dest.options);
    printers.push_back(
        {QString::fromUtf8(dest.name), QString::fromUtf8(info ? info : dest.name), dest.is_default != 0});
  }
  const bool chosen =
      std::any_of(printers.begin(), printers.end(), [](const PrinterEntry& p) { return p.isDefault; });
  printers.push_back(
      {kFilePrinter, QStringLiteral("PDFファイル（フォルダ 印刷）"), printers.empty() && !chosen});
  return printers;
}

QString defaultPrinter() {
  if (const Destination usual = find(QString())) return QString::fromUtf8(usual->name);
  const std::vector<PrinterEntry> printers = listPrinters();
  for (const PrinterEntry& printer : printers)
    if (printer.isDefault) return printer.name;
  return printers.front().name;
}

std::vector<MediaSize> listMedia(const QString& printer) {
  std::vector<MediaSize> sizes;
  const Destination found = printer == kFilePrinter ? nullptr : find(printer);
  cups_dest_t* dest = found.get();
  if (dest) {
    const DestInfo info = infoOf(dest);
    const int count = info ? cupsGetDestMediaCount(CUPS_HTTP_DEFAULT, dest, info.get(), 0) : 0;
    for (int i = 0; i < count; ++i) {
      cups_size_t size;
      if (!cupsGetDestMediaByIndex(CUPS_HTTP_DEFAULT, dest, info.get(), i, 0, &size)) continue;
      const char* caption = cupsLocalizeDestMedia(CUPS_HTTP_DEFAULT, dest, info.get(), 0, &size);
      // The same paper printed to its edges is the same paper to the forms.
      const QString media = QString::fromUtf8(size.media).remove(QStringLiteral("_borderless"));
      const auto same = [&](const MediaSize& known) { return known.media == media; };
      if (std::none_of(sizes.begin(), sizes.end(), same))
        sizes.push_back({media, QString::fromUtf8(caption ? caption : size.media)});
    }
  }
  if (sizes.empty())
    for (const Paper& paper : papers()) sizes.push_back({paper.media, paper.word});
  return sizes;
}

bool Spooler::open(const QString& title) {
  m_title = title;
  return find(m_choice.printer) != nullptr;
}

text::Done Spooler::take(const QByteArray& pdf) {
  const Destination found = find(m_choice.printer);
  cups_dest_t* dest = found.get();
  if (!dest) return notTaken(m_choice.printer);
  const DestInfo info = infoOf(dest);
  if (!info) return notTaken(m_choice.printer);
  Options options;
  addChoice(options, m_choice);
  const QByteArray title = m_title.toUtf8();
  int job = 0;
  if (cupsCreateDestJob(CUPS_HTTP_DEFAULT, dest, info.get(), &job, title.constData(), options.count(),
                        options.all()) > IPP_STATUS_OK_EVENTS_COMPLETE)
    return notTaken(m_choice.printer);
  const auto started = cupsStartDestDocument(CUPS_HTTP_DEFAULT, dest, info.get(), job, title.constData(),
                                             CUPS_FORMAT_PDF, options.count(), options.all(), 1);
  bool sent =
      started == HTTP_STATUS_CONTINUE &&
      cupsWriteRequestData(CUPS_HTTP_DEFAULT, pdf.constData(), size_t(pdf.size())) == HTTP_STATUS_CONTINUE;
  if (started == HTTP_STATUS_CONTINUE)
    sent =
        cupsFinishDestDocument(CUPS_HTTP_DEFAULT, dest, info.get()) <= IPP_STATUS_OK_EVENTS_COMPLETE && sent;
  if (sent) return {};
  cupsCancelDestJob(CUPS_HTTP_DEFAULT, dest, job);
  return notTaken(m_choice.printer);
}

}  // namespace report
