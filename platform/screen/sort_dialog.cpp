#include "platform/screen/sort_dialog.h"

namespace screen {
namespace detail {

SortDeclaration::SortDeclaration(const SortRow& row)
    : screenRow{.name = row.name, .caption = u"ソート", .rows = {}, .heading = u"ソート"} {
  for (const ColumnChoice& column : row.columns) captions.push_back(column.caption());
  rows = {
      Combo{.name = u"Combo1",
            .caption = u"並び替える項目:",
            .bind = Unbound{u"the column to sort by"},
            .items = captions,
            .say = u"カーソルで並び替える項目を選択して下さい"},
      Bar{},
      Command{.name = u"Command1", .caption = u"昇順", .run = run<&SortDialog::ascending>, .standard = true},
      Command{.name = u"Command3", .caption = u"降順", .run = run<&SortDialog::descending>},
      Command{.name = u"Command2", .caption = u"キャンセル", .run = run<&SortDialog::cancel>, .key = u"Esc"},
      EndBar{},
  };
  screenRow.rows = rows;
}

}  // namespace detail

SortDialog::SortDialog(const SortRow& row, Services& services)
    : SortDeclaration(row), Screen(screenRow, services), m_row(row) {}

void SortDialog::onLoad() { setText("Combo1", QString::fromUtf16(captions.front())); }

void SortDialog::ascending() { sort(QStringLiteral(" ASC")); }
void SortDialog::descending() { sort(QStringLiteral(" DESC")); }
void SortDialog::cancel() { close(); }

void SortDialog::sort(const QString& direction) {
  ListScreen* list = listOf(*this, m_row.list);
  const int chosen = chosenItem("Combo1");
  if (list == nullptr || chosen < 0) return;
  const QString column = QString::fromUtf16(m_row.columns[static_cast<size_t>(chosen)].column());
  if (!list->sortBy(column + direction)) return;
  navigator().show(list->objectName());
  close();
}

void addSortDialogs(ScreenRegistry& registry, std::span<const SortRow> rows) {
  for (const SortRow& row : rows)
    registry.add(QString::fromUtf16(row.name.get()),
                 [&row](Services& services) { return std::make_unique<SortDialog>(row, services); });
}

}  // namespace screen
