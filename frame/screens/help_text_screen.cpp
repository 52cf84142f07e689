#include "frame/screens/help_text_screen.h"

#include <QDir>
#include <QFile>

#include "frame/core/routes.h"
#include "platform/screen/declare.h"

namespace frame {

using namespace screen;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Unbound kHelp{u"text of the help file"};

constexpr Row kRows[] = {
    Combo{.name = {u"Combo1"},
          .caption = u"章:",
          .bind = kHelp,
          .width = 30,
          .onEdit = call<&HelpTextScreen::showChapter>},
    TextField{
        .name = {u"Text1"}, .caption = u"説明:", .bind = kHelp, .width = 40, .lines = 20, .readOnly = true},
    Bar{},
    Command{.name = {u"Command1"}, .caption = u"閉じる", .run = run<&HelpTextScreen::finish>, .key = u"Esc"},
    EndBar{},
};

constexpr ScreenRow kDeclaration =
    declare({.name = routes::TextHelp::screen,
             .caption = u"テキストヘルプ",
             .rows = kRows,
             .heading = u"テキストヘルプ。上下の矢印キーで章を選び、タブキーで説明を聞きます。"});

constexpr ControlRef kChapter = ref(kRows, u"Combo1");
constexpr ControlRef kExplanation = ref(kRows, u"Text1");

/// A chapter begins with a line of its own: 第１章 ...
bool isHeading(const QString& line) { return line.startsWith(u'第') && line.left(5).contains(u'章'); }

QStringList readChapters(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  QStringList chapters{QString()};
  for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
    if (isHeading(line)) chapters += QString();
    chapters.last() += line + u'\n';
  }
  for (QString& chapter : chapters) chapter = chapter.trimmed();
  chapters.removeAll(QString());
  return chapters;
}

}  // namespace

HelpTextScreen::HelpTextScreen(Services& services, RunState& run)
    : Screen(kDeclaration, services), m_run(run) {}

void HelpTextScreen::onLoad() {
  m_chapters = readChapters(QDir(m_run.programFolder).filePath(u"help.txt"_s));
  QStringList headings;
  for (const QString& chapter : m_chapters) headings += chapter.section(u'\n', 0, 0);
  setItems(kChapter, headings);
  setText(kChapter, headings.value(0));
  setText(kExplanation, m_chapters.value(0));
}

void HelpTextScreen::showChapter() {
  for (const QString& chapter : m_chapters)
    if (chapter.section(u'\n', 0, 0) == text(kChapter)) setText(kExplanation, chapter);
}

void HelpTextScreen::finish() { navigator().unload(routes::TextHelp::screen); }

}  // namespace frame
