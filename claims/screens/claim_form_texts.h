#pragma once

namespace claims::says {

// The claim form's own sentences.

inline constexpr char16_t kCheckChanged[] =
    u"チェックボタンもしくはラジオボタンが変更されました。一度登録ボタンを押して下さい";
inline constexpr char16_t kTreatmentChanged[] =
    u"「治療」の内容が変更されました。一度登録ボタンを押して下さい";
inline constexpr char16_t kStoreQuestion[] = u"       　　    更新しますか？";
inline constexpr char16_t kDeleteQuestion[] = u"　現在の表示の患者を削除しますか？";
inline constexpr char16_t kNeverStored[] = u"一度登録ボタンを押してから終了して下さい";
inline constexpr char16_t kUseCloseButton[] = u"「閉じる」ボタンより終了して下さい";
inline constexpr char16_t kAlreadyOpen[] = u"既にレセプトフォームは開かれています";
inline constexpr char16_t kTwice[] = u"（重複禁止）";
inline constexpr char16_t kClearAgentQuestion[] = u"　　代表者のデータをクリアしますか？";
inline constexpr char16_t kClosedBefore2018[] =
    u"注：平成30年10月以前のレセプトデータでは、「施術報告書印刷」及び「往療内訳表」の入力と印刷は"
    u"できません。";
inline constexpr char16_t kFreeVisitDistance[] =
    u"往診で同一住所の場合で、往診料金を加算しない場合は、チェックを入れてください。"
    u"（往診距離は、空白にしてください。）申請書の日付を◎にします。";
inline constexpr char16_t kFreeVisitPersons[] =
    u"訪問で同一患者の場合で、訪問料金を加算しない場合は、チェックを入れてください。"
    u"（往診人数欄は、空白にしてください。）申請書の日付を◎にします。";
inline constexpr char16_t kNewPictureQuestion[] = u"　　　 　新規で作成しますか？";
// Results for the ear, after the commands that change the screen without a message.
inline constexpr char16_t kStored[] = u"登録しました";
inline constexpr char16_t kWesternDone[] = u"日付を西暦にしました";
inline constexpr char16_t kEraDone[] = u"日付を和暦にしました";
inline constexpr char16_t kNoPrintScreen[] = u"印刷の画面がありません。";

}  // namespace claims::says
