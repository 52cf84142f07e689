// prp: checks, shows and draws the templates of the printed forms.
//   prp check FILE...          faults on standard error, status 1 if there is any
//   prp dump FILE              the resolved form, one item a line
//   prp preview FILE OUT.png   the form with the names of its items

#include <QCoreApplication>
#include <QFileInfo>
#include <QTextStream>

#include "platform/report/form_check.h"
#include "platform/report/preview.h"
#include "platform/report/prp_loader.h"

namespace {

text::Result<report::FormPtr> load(const QString& path) {
  const QFileInfo info(path.contains(u'.') ? path : path + QStringLiteral(".PRP"));
  return report::loadForm(info.path(), info.fileName());
}

int check(const QStringList& files, QTextStream& out, QTextStream& err) {
  int faults = 0;
  for (const QString& file : files) {
    const auto form = load(file);
    const QStringList found =
        form.ok() ? report::checkForm(*form.value()) : QStringList{form.fault().message};
    for (const QString& fault : found) err << fault << '\n';
    if (found.isEmpty()) out << file << ": " << form.value()->items.size() << " items\n";
    faults += int(found.size());
  }
  return faults ? 1 : 0;
}

int dump(const report::Form& form, QTextStream& out) {
  out << "form " << form.name << "  " << form.paper.word << ' ' << form.width() << " x " << form.height()
      << " mm\n";
  int block = -1;
  for (const report::Item& item : form.items) {
    if (item.block != block) out << "block " << form.blocks.value(block = item.block) << '\n';
    out << report::kindWord(item.kind) << ' ' << item.name << ' ' << item.rect.x << ' ' << item.rect.y << ' '
        << item.rect.w << ' ' << item.rect.h << " pt " << item.pt << " lines " << item.lines
        << (item.vertical ? " vertical" : "") << (item.hidden ? " hidden" : " shown");
    if (!item.text.isEmpty()) out << " \"" << item.text << '"';
    for (const report::Placement& place : item.placements)
      out << " \"" << place.words.join(u'|') << "\" " << place.rect.x << ' ' << place.rect.y << ' '
          << place.rect.w << ' ' << place.rect.h;
    out << '\n';
  }
  return 0;
}

int preview(const report::FormPtr& form, const QString& picture, QTextStream& err) {
  report::PreviewOptions options;
  options.dpi = 200;
  options.names = true;
  if (report::writePng(report::previewForm(form, options).get(), picture)) return 0;
  err << picture << ": cannot be written\n";
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  QTextStream out(stdout), err(stderr);
  const QStringList arguments = application.arguments().mid(1);
  const QString command = arguments.value(0);
  if (command == u"check" && arguments.size() > 1) return check(arguments.mid(1), out, err);
  const bool known =
      (command == u"dump" && arguments.size() == 2) || (command == u"preview" && arguments.size() == 3);
  if (!known) {
    err << "prp check FILE... | prp dump FILE | prp preview FILE OUT.png\n";
    return 2;
  }
  const auto form = load(arguments[1]);
  if (!form.ok()) {
    err << form.fault().message << '\n';
    return 1;
  }
  return command == u"dump" ? dump(*form.value(), out) : preview(form.value(), arguments[2], err);
}
