#pragma once

#include <array>

namespace records {

/// The columns of the patient table that the list of patients is narrowed and sorted by, in the order in
/// which its dialogs offer them. Unlike the search row of the patient screen they go by the names of the
/// table (ふりがな) and leave out ID, 治療 and メモ1.
inline constexpr std::array<const char16_t*, 30> kListColumns = {
    u"患者ID",      u"カルテ番号", u"ふりがな",
    u"氏名",        u"性別",       u"生年月日",
    u"年齢",        u"職業",       u"会社名",
    u"郵便番号",    u"住所1",      u"住所2",
    u"住所3",       u"電話1",      u"電話2",
    u"携帯",        u"FAX",        u"キーワード1",
    u"キーワード2", u"区分",       u"紹介してくれた人",
    u"紹介した人",  u"担当者",     u"割付",
    u"既往症",      u"日付1",      u"テキスト1",
    u"テキスト2",   u"テキスト3",  u"症状"};

}  // namespace records
