#include "records/core/search_columns.h"

namespace records {

namespace {
constexpr SearchColumn kColumns[] = {
    {u"ID", u"ID"},
    {u"患者ID", u"患者ID"},
    {u"カルテ番号", u"カルテ番号"},
    {u"フリガナ", u"ふりがな"},
    {u"氏名", u"氏名"},
    {u"性別", u"性別"},
    {u"生年月日", u"生年月日"},
    {u"年齢", u"年齢"},
    {u"職業", u"職業"},
    {u"会社名", u"会社名"},
    {u"郵便番号", u"郵便番号"},
    {u"住所1", u"住所1"},
    {u"住所2", u"住所2"},
    {u"住所3", u"住所3"},
    {u"電話1", u"電話1"},
    {u"電話2", u"電話2"},
    {u"携帯", u"携帯"},
    {u"FAX", u"FAX"},
    {u"キーワード1", u"キーワード1"},
    {u"キーワード2", u"キーワード2"},
    {u"区分", u"区分"},
    {u"紹介してくれた人", u"紹介してくれた人"},
    {u"紹介した人", u"紹介した人"},
    {u"担当者", u"担当者"},
    {u"割付", u"割付"},
    {u"既往症", u"既往症"},
    {u"日付1", u"日付1"},
    {u"テキスト1", u"テキスト1"},
    {u"テキスト2", u"テキスト2"},
    {u"テキスト3", u"テキスト3"},
    {u"症状", u"症状"},
    {u"治療", u"治療"},
    {u"メモ1", u"メモ1"},
};
}  // namespace

std::span<const SearchColumn> searchColumns() { return kColumns; }

QString columnOfCaption(const QString& caption) {
  for (const SearchColumn& row : kColumns)
    if (caption == row.caption) return row.column.toString();
  return {};
}

}  // namespace records
