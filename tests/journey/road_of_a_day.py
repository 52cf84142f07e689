"""The road of a day by keyboard and ear alone: a patient is found, the visit written with a phrase of the
dictionary, the next one booked, the takings and a consent that runs out heard, a doctor registered and everything
copied to a folder.

usage: road_of_a_day.py BUILD SOURCE
"""
import hashlib
import os
import re
import sqlite3
import sys

import road

DAY = "令和6年11月5日"
VISITS, BOOKINGS, DOCTORS = "カルテ2データ2000.mdb", "予約2000.mdb", "同意医師2000.mdb"


def road_of_a_day(on):
    on.open_the_program()
    on.new_patient(1, "見本　太郎", "ﾐﾎﾝ ﾀﾛｳ", "男", "1953/3/5", "昭和28年3月5日")
    to_the_menu(on)
    on.new_patient(2, "例示　花子", "ﾚｲｼﾞ ﾊﾅｺ", "女", "1940/5/25", "昭和15年5月25日")
    to_the_menu(on)
    found_by_kana(on)
    phrase = phrase_copied(on)
    visit_written(on, phrase)
    next_visit_booked(on)
    claim_with_consent(on)
    to_the_menu(on)
    booking_heard(on)
    takings_heard(on)
    consent_warned_of(on)
    doctor_registered(on)
    backed_up(on)
    on.end()


def to_the_menu(on):
    on.press("メインメニューへ")
    on.at("選択")


def stored(on, file, table, *columns):
    """The rows as they lie in the file, whatever the program shows."""
    with sqlite3.connect("file:%s?mode=ro" % os.path.join(on.folder, file), uri=True) as database:
        names = ", ".join('"%s"' % column for column in columns)
        return database.execute('SELECT %s FROM "%s" ORDER BY ID' % (names, table)).fetchall()


def found_by_kana(on):
    """選択4 finds a part of the reading, typed in another kana."""
    on.press("電子カルテ")
    on.at("検索", "検索")
    on.driver.check("フリガナ")
    on.write_combo("検索文字入力", "みほん")
    on.press("検索")
    on.at("治療台帳")
    on.shows("※氏名", "見本　太郎")
    with open(os.path.join(on.folder, "word.txt"), "rb") as history:
        assert "みほん" in history.read().decode("cp932"), "the word is kept for the next search"


def phrase_copied(on):
    """A phrase of the dictionary goes to the clipboard by the button beside the list."""
    on.driver.menu("ファイル", "常用文字１")
    on.at("クリップ文字")
    on.driver.keys("Down")
    on.hears_the_focus("クリップ文字")
    phrase = on.driver.read("書き込み文字の変更と新規の書き込み")
    assert phrase, "the dictionary is laid out with phrases"
    on.press("Ｃ")
    on.driver.wait_spoken(re.compile(re.escape(phrase)), on.mark)
    on.press("閉じる")
    on.at("治療台帳")
    return phrase


def visit_written(on, phrase):
    """The first visit of the patient: asked for, dated by a button, the phrase pasted, stored."""
    on.press("カルテ2へ")
    on.at("新規作成", "この患者のカルテ２のデータはありません。、新規につくりますか？")
    on.press("はい")
    on.at("カルテ")
    on.press("今日の日付を代入")
    on.driver.wait_spoken("治療日:、" + DAY, on.mark)
    for field, amount in (("保険者負担金", "3430"), ("治療の記録 一部負担金", "1470"), ("治療金額", "5500")):
        on.write(field, amount)
    on.driver.check("領収証チェック")
    on.driver.check("新患チェック")
    on.driver.focus_on(on.driver.field("治療概略"))
    on.driver.keys("ctrl+v")
    on.shows("治療概略", phrase)
    on.press("登録")
    on.question("「登録」しました。", "OK")
    on.back_at("カルテ")
    visit, = stored(on, VISITS, "カルテ", "氏名", "治療日時", "治療概略", "保険者負担金", "保険の一部負担金",
                    "治療金額", "領収証チェック", "新患")
    assert visit == ("見本　太郎", DAY, phrase, "3430", "1470", "5500", -1, -1), visit
    on.press("閉じる")
    on.at("治療台帳")


def next_visit_booked(on):
    """From the patient on view: only day and time are left to tell."""
    on.driver.menu("予約", "表示患者の新規予約")
    on.at("予約")
    on.shows("予約患者", "見本　太郎")
    on.write_combo("予約日", "8")
    on.write("予約時間", "9:30")
    on.write("メモ1", "往療")
    on.press("登録")
    on.question("更新しました。一旦、閉じるを押してください。", "OK")
    on.back_at("予約")
    booking, = stored(on, BOOKINGS, "予約", "予約患者", "予約年", "予約月", "予約日", "予約曜日", "予約時間", "メモ1")
    assert booking[:4] == ("見本　太郎", "2024", "11", "8"), booking
    assert booking[4].startswith("金") and booking[6] == "往療", booking
    on.press("閉じる")
    on.at("治療台帳")


def claim_with_consent(on):
    """A claim whose consent ends just a month ahead."""
    on.new_claim("国保", "鍼灸治療", "保険証の本人")
    on.driver.page("保険証")
    for field, text in (("※申請年月", "令和6年11月"), ("申請月", "11"), ("請求回数", "1")):
        on.write(field, text)
    on.write_combo("※保険者名称", "みほん市")
    on.write_combo("※施術録の保険の種類", "国民健保")
    on.write_combo("一部負担金", "3割")
    on.driver.page("同意書")
    on.write("※初療年月日", DAY)
    on.write("要加療期間（至）", "令和6年12月5日")
    on.days([(5, "a")])
    on.driver.check("初回有無")
    on.write_combo("請求区分", "新規")
    # The first treatment with one art, 1,950, and one art on a day, 1,610; three tenths of 3,560 are 1,068.
    on.store("3,560円", "1,068円", "2,492円")
    on.press("閉じる")
    on.at("治療台帳")


def booking_heard(on):
    """今日の予約 for the day asked, then the week around today."""
    on.press("予約")
    on.at("今日の予約")
    on.write_combo("日", "7")
    on.press("上記の指定日の予約の表示")
    on.question("該当がありません。", "OK")
    on.back_at("今日の予約")
    on.write_combo("日", "8")
    on.press("上記の指定日の予約の表示")
    on.driver.wait_spoken(re.compile("令和6年11月8日.*予約 1 件"), on.mark)
    row, = on.driver.rows()
    assert row[1] == "見本　太郎" and row[4] == "8", row
    calendar_walked(on)
    on.press("週間表")
    on.question("該当がありません。", "OK")  # nothing today
    on.back_at("予約週間表")
    for _ in ("水曜日", "木曜日"):
        on.driver.keys("Right")
        on.question("該当がありません。", "OK")
        on.driver.wait_window("予約週間表")
    on.driver.keys("Right")
    on.driver.wait_spoken(re.compile("令和6年11月8日金曜日.*予約 1 件"), on.mark)
    assert focus_told(on)[-1].role == "page tab", "a screen reader stays on the days"
    row, = on.driver.rows()
    assert row[1] == "見本　太郎", row
    on.driver.tab()
    on.hears_the_focus("予約週間表")
    assert focus_told(on)[-1].role == "table cell", "a screen reader gets to the cell with the table"
    on.press("閉じる")
    on.at("選択")


def focus_told(on, mark=0):
    """What screen readers were told to be in focus."""
    return [event[3] for event in on.driver.bus.events.since(mark) if event[1] == "Focus:Focus"]


def calendar_walked(on):
    """Each key says its day; a screen reader stays in the field and is not sent to the cells of the sheet."""
    on.press("カレンダー表示")
    on.at("予約カレンダー")
    for key, day in (("Right", "令和6年11月6日水曜日"), ("Down", "令和6年11月13日水曜日"), ("Home", "令和6年11月1日金曜日")):
        told = on.driver.bus.events.mark()
        on.driver.keys(key)
        on.driver.wait_spoken(day, on.mark)
        assert focus_told(on, told) == [], focus_told(on, told)
        assert on.driver.focus().text == day, on.driver.focus().text
    on.driver.keys("Escape")
    on.back_at("今日の予約")


def takings_heard(on):
    """集計 of the day: number of visits, then the sums one by one."""
    on.press("集計")
    on.at("集計")
    on.press("日付で抽出")
    on.driver.wait_spoken(re.compile(DAY + ".*治療総数:、1"), on.mark)
    on.press("総合金額の表示")
    on.at("集計総合金額", re.compile("総患者数:、1人、保険者負担金:、3,430円、保険の一部負担金:、1,470円、"
                                     "治療金額:、5,500円、領収証発行数:、1、新患数:、1人"))
    on.press("閉じる")
    on.at("集計")
    on.press("閉じる")
    on.at("選択")


def consent_warned_of(on):
    """同意期限一ヶ月 says how many there are, shows whose, and prints them."""
    on.press("レセプトデータ")
    on.at("レセプトの一覧表")
    on.press("同意期限一ヶ月以内表示")
    on.at("同意期限一ヶ月以内", re.compile("同意期限が一ヶ月以内の患者は、1名です。"))
    rows = on.driver.rows()
    assert rows == [["見本　太郎", "国保", "2024年12月5日", "鍼灸", ""]], rows
    on.driver.keys("Right", "Right")
    on.driver.wait_spoken("同意期限、2024年12月5日", on.mark)
    before = len(on.driver.printed())
    on.press("印刷")
    on.question("現在表示している一覧の印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。", "OK")
    paper, = on.driver.wait_printed(before)
    assert paper.title == "同意期限一ヶ月以内", paper.title
    assert paper.pages == 1, paper.pages
    road.expect_on(paper, "同意期限一ヶ月データ一覧", "印刷日:2024/11/5", "見本　太郎", "国保", "2024年12月5日", "鍼灸")
    on.driver.wait_spoken("印刷に送りました。", on.mark)
    on.press("閉じる")
    on.at("レセプトの一覧表")
    on.press("閉じる")
    on.at("選択")


def doctor_registered(on):
    on.press("同意医師の登録")
    on.at("同意医師の登録")
    on.press("新規")
    on.hears_the_focus("同意医師の登録")
    doctor = (("氏名", "架空　一郎"), ("フリガナ", "ｶｸｳ ｲﾁﾛｳ"), ("病院名", "見本病院"), ("住所", "架空県みほん市２"),
              ("TEL", "000-000-0002"))
    for field, text in doctor:
        on.write(field, text)
    on.press("登録")
    on.driver.wait_spoken("登録しました、架空　一郎", on.mark)
    row, = stored(on, DOCTORS, "同意医師", *(field for field, _ in doctor))
    assert row == tuple(text for _, text in doctor), row
    on.press("閉じる")
    on.at("選択")


def backed_up(on):
    """データバックアップ: the copies are the files, and their sums lie beside them."""
    folder = os.path.join(on.folder, "写し")
    os.mkdir(folder)
    on.press("データバックアップ")
    on.driver.wait_window("フォルダの選択")
    on.driver.type(folder)
    on.driver.keys("Return")
    on.question("データのバックアップが終わりました。", "OK")
    on.back_at("選択")
    with open(os.path.join(folder, "b2sums.txt"), encoding="utf-8") as sums:
        listed = dict(reversed(line.rstrip("\n").split("  ", 1)) for line in sums if not line.startswith("#"))
    for file in (VISITS, BOOKINGS, DOCTORS, "qv.dat"):
        with open(os.path.join(folder, file), "rb") as copy:
            content = copy.read()
        assert listed[file] == hashlib.blake2b(content).hexdigest(), file
    with sqlite3.connect(os.path.join(folder, VISITS)) as copy:
        assert copy.execute("SELECT 氏名 FROM カルテ").fetchall() == [("見本　太郎",)]


if __name__ == "__main__":
    road.run(sys.argv[1], sys.argv[2], road_of_a_day)
