"""The road of a claim from an empty program folder to paper and the next month, by keyboard and ear alone.

usage: road_of_a_claim.py BUILD SOURCE [ROAD]: one of the roads below, else both
"""
import sys

import road


def road_of_a_claim(on):
    """鍼灸 of 令和6年10月 at three tenths, printed, carried to November."""
    on.open_the_program()
    on.new_patient(1, "見本　太郎", "ﾐﾎﾝ ﾀﾛｳ", "男", "1953/3/5", "昭和28年3月5日")
    on.new_claim("国保", "鍼灸治療", "保険証の本人")
    on.driver.page("保険証")
    for field, text in (("※申請年月", "令和6年10月"), ("申請月", "10"), ("請求回数", "1")):
        on.write(field, text)
    on.write_combo("※保険者名称", "みほん市")
    on.write_combo("※施術録の保険の種類", "国民健保")
    on.write_combo("一部負担金", "3割")
    on.driver.page("同意書")
    on.write("※初療年月日", "令和6年10月2日")
    on.days([(2, "a"), (5, "b"), (9, "f")])
    on.driver.check("初回有無")
    on.write_combo("請求区分", "新規")

    # Fees of the notice from 令和6年10月: the first treatment began with one art, 1,950. One art on two days,
    # 1,610 x 2 = 3,220; two arts on one, 1,770; 電療 (b, f) on two, 100 x 2 = 200. Together 7,140; three tenths
    # are 2,142, the insurer pays 4,998.
    on.store("7,140円", "2,142円", "4,998円")
    on.press("施術料金計算")
    on.at("施術料金", "施術料金")
    on.lines("施術料金", [("初回施術", "1,950円 × 1回 ＝ 1,950円"),
                          ("はり・きゅう 1術", "1,610円 × 2回 ＝ 3,220円"),
                          ("はり・きゅう 2術", "1,770円 × 1回 ＝ 1,770円"),
                          ("電気鍼・電気温灸器・電気光線器具", "100円 × 2回 ＝ 200円"),
                          ("合計", "7,140円"), ("一部負担金 3割", "2,142円"), ("請求額", "4,998円")])
    # 7,140 times 0.1 to 0.9: whole yen all of them.
    on.press("計算式確認")
    on.at("計算式確認", "計算式確認")
    on.write("元数値", "7140")
    on.press("計算")
    on.hears_the_focus("計算式確認")
    assert on.driver.read("３割 切り上げ") == "2,142", on.driver.fields()
    assert on.driver.read("７割 切り捨て") == "4,998", on.driver.fields()
    on.press("閉じる")
    on.at("施術料金")
    on.driver.keys("Escape")
    on.at("保険申請")

    paper = on.print_claim("鍼灸印刷", "申請書鍼")
    road.expect_on(paper, "療　養　費　支　給　申　請　書", "はり・きゅう用", "見本　太郎", "ﾐﾎﾝ ﾀﾛｳ", "7,140", "2,142",
                   "4,998", "1,950", "3,220", "1,770")
    on.press("閉じる")
    on.at("治療台帳")
    on.press("メインメニューへ")
    on.at("選択")
    carried_to_the_next_month(on)
    on.end()


def carried_to_the_next_month(on):
    """翌月へ継続 from the list: the new claim stands in the list after 更新 only."""
    on.press("レセプトデータ")
    on.at("レセプトの一覧表", "レセプトの一覧表")
    before = on.driver.rows()
    assert [row[:2] for row in before] == [["令和6年10月", "見本　太郎"]], before
    on.press("レセプト項目の記入へ")
    on.at("保険申請")
    on.press("翌月へ継続")
    on.question("この患者の新しいレセプトを追加しますか？", "はい")
    on.driver.wait_spoken("コメジルシ申請年月:、令和6年11月", on.mark)
    on.shows("※申請年月", "令和6年11月")
    on.driver.page("保険証")
    on.shows("請求回数", "2")
    on.shows("申請月", "11")
    on.press("閉じる")
    on.question("一度登録ボタンを押してから終了して下さい", "OK")
    # はり on one day, 1,610; three tenths are 483.
    on.days([(1, "a")])
    on.store("1,610円", "483円", "1,127円")
    on.press("閉じる")
    on.at("レセプトの一覧表")
    assert on.driver.rows() == before, "the new claim waits for 更新"
    on.press("更新")
    on.hears_the_focus("レセプトの一覧表")
    rows = [row[:8] for row in on.driver.rows()]
    assert rows == [["令和6年11月", "見本　太郎", "鍼灸", "国保", "継続", "1610", "483", "1127"],
                    ["令和6年10月", "見本　太郎", "鍼灸", "国保", "新規", "7140", "2142", "4998"]], rows
    found_and_sorted(on)
    on.press("閉じる")
    on.at("選択")


def found_and_sorted(on):
    """抽出 and 並び替え of the two claims; a search without a hit leaves the list."""
    months = lambda: [row[0] for row in on.driver.rows()]
    on.driver.choose("抽出する項目", "氏名")
    on.write("抽出する文字", "ほかの人")
    on.press("抽出")
    on.question("該当がありません。", "OK")
    on.back_at("レセプトの一覧表")
    assert months() == ["令和6年11月", "令和6年10月"], months()
    on.press("並び替え")
    on.at("ソート", "ソート")
    on.driver.choose("並び替える項目", "申請年月")
    on.press("昇順")
    on.at("レセプトの一覧表")
    assert months() == ["令和6年10月", "令和6年11月"], months()
    on.driver.choose("抽出する項目", "申請年月")
    on.write("抽出する文字", "１１月")  # full width finds the half-width month
    on.driver.keys("Return")
    on.hears_the_focus("レセプトの一覧表")
    assert months() == ["令和6年11月"], months()
    on.press("全患者表示及び再表示")
    on.hears_the_focus("レセプトの一覧表")
    assert months() == ["令和6年11月", "令和6年10月"], months()


def road_of_a_massage_claim(on):
    """あマ of 令和6年10月 at one tenth with public funds and visits, for a patient of the aged."""
    on.open_the_program()
    on.new_patient(1, "例示　花子", "ﾚｲｼﾞ ﾊﾅｺ", "女", "1940/5/25", "昭和15年5月25日")
    on.new_claim("後期高齢", "マッサージ治療", "保険証の本人")
    on.driver.page("保険証")
    for field, text in (("※申請年月", "令和6年10月"), ("申請月", "10"), ("請求回数", "4"), ("公費負担番号", "12345678"),
                        ("公費受給者番号", "7654321")):
        on.write(field, text)
    on.write_combo("※保険者名称", "架空県広域連合")
    on.write_combo("※施術録の保険の種類", "後期高齢")
    on.write_combo("一部負担金", "1割")
    on.driver.check("公費負担（乳・障・母）")
    on.driver.page("同意書")
    on.write("※初療年月日", "令和6年7月3日")
    for area in ("マッサージ 躯幹", "マッサージ 右上肢"):
        on.driver.check(area)
    on.days([(2, "g2"), (4, "g2"), (6, "g2"), (8, "g2"), (10, "i2")], [(6, "v3"), (8, "v3"), (10, "v1")])
    on.write_combo("請求区分", "継続")
    on.write_combo("転帰", "継続")

    # Fees of the notice from 令和6年10月: two areas 450 x 2 on two days, 1,800; a hot pack 180; 訪問施術 with two
    # areas, one person 3,200 and three persons 1,360 x 2 = 2,720. Together 7,900; a tenth is 790.
    on.store("7,900円", "790円", "7,110円")
    on.press("施術料金計算")
    on.at("施術料金", "施術料金")
    on.lines("施術料金", [("マッサージ 2局所", "900円 × 2回 ＝ 1,800円"),
                          ("温罨法", "180円 × 1回 ＝ 180円"),
                          ("訪問施術①（1人） 2局所", "3,200円 × 1回 ＝ 3,200円"),
                          ("訪問施術③（3人～9人） 2局所", "1,360円 × 2回 ＝ 2,720円"),
                          ("合計", "7,900円"), ("一部負担金 1割", "790円"), ("請求額", "7,110円")])
    on.press("閉じる")
    on.at("保険申請")

    paper = on.print_claim("あマ印刷", "申請書マ")
    road.expect_on(paper, "療　養　費　支　給　申　請　書", "あんま・マッサージ用", "例示　花子", "ﾚｲｼﾞ ﾊﾅｺ",
                   "12345678", "7654321", "7,900", "790", "7,110", "3,200", "2,720")
    on.press("閉じる")
    on.at("治療台帳")
    on.press("メインメニューへ")
    on.at("選択")
    on.end()


if __name__ == "__main__":
    ROADS = (road_of_a_claim, road_of_a_massage_claim)
    road.run(sys.argv[1], sys.argv[2], *(r for r in ROADS if r.__name__ in sys.argv[3:] or not sys.argv[3:]))
