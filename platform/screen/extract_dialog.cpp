#include "platform/screen/extract_dialog.h"

#include "platform/store/criteria_text.h"

namespace screen {
namespace detail {

ExtractDeclaration::ExtractDeclaration(const ExtractRow& row)
    : screenRow{.name = row.name, .caption = row.caption, .rows = {}, .heading = row.caption.get()} {
  for (const ColumnChoice& column : row.columns) captions.push_back(column.caption());
  rows = {
      Combo{.name = u"Combo1",
            .caption = u"抽出する項目:",
            .bind = Unbound{u"the column to search"},
            .items = captions,
            .say = u"カーソルで抽出する項目を選択して下さい"},
      TextField{
          .name = u"Text1", .caption = row.wordCaption, .bind = Unbound{u"the text to search"}, .width = 30},
  };
  for (const Note& note : row.notes) rows.push_back(note);
  rows.push_back(Bar{});
  rows.push_back(
      Command{.name = u"Command1", .caption = row.go, .run = run<&ExtractDialog::extract>, .standard = true});
  rows.push_back(Command{
      .name = u"Command2", .caption = u"キャンセル", .run = run<&ExtractDialog::cancel>, .key = u"Esc"});
  rows.push_back(EndBar{});
  screenRow.rows = rows;
}

}  // namespace detail

ExtractDialog::ExtractDialog(const ExtractRow& row, Services& services)
    : ExtractDeclaration(row), Screen(screenRow, services), m_row(row) {}

void ExtractDialog::onLoad() { setText("Combo1", QString::fromUtf16(captions.front())); }

void ExtractDialog::cancel() { close(); }

QString yesNoText(const QString& typed) {
  if (typed == u"Yes" || typed == u"yes") return QStringLiteral("-1");
  if (typed == u"No" || typed == u"no") return QStringLiteral("0");
  return typed;
}

void ExtractDialog::extract() {
  ListScreen* list = listOf(*this, m_row.list);
  const int chosen = chosenItem("Combo1");
  QString word = text("Text1");
  if (list == nullptr || chosen < 0) return;
  if (word.isEmpty() && m_row.blankDoesNothing) return askFor("Text1");
  const ColumnChoice& choice = m_row.columns[static_cast<size_t>(chosen)];
  if (choice.yesNo()) word = yesNoText(word);
  if (!list->narrowBy(store::likeCriterion(QString::fromUtf16(choice.column()), word))) return;
  navigator().show(list->objectName());
  close();
}

void addExtractDialogs(ScreenRegistry& registry, std::span<const ExtractRow> rows) {
  for (const ExtractRow& row : rows)
    registry.add(QString::fromUtf16(row.name.get()),
                 [&row](Services& services) { return std::make_unique<ExtractDialog>(row, services); });
}

}  // namespace screen
