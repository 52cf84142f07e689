"""What the journeys share: a fresh program folder, a private display, and the rules that hold at every screen."""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time

SKIPPED = 77


def import_driver(source):
    """The driver's Desk; where the driver does not lie beside this checkout the journey is skipped."""
    folder = os.path.join(source, "..", "shared", "drive")
    if not os.path.isfile(os.path.join(folder, "drive.py")):
        print("skipped: the driver is not beside this checkout")
        sys.exit(SKIPPED)
    sys.path.insert(0, folder)
    from drive import Desk
    return Desk


def lay_out(build, source):
    """A program folder as after installation, in a temporary directory of its own."""
    folder = tempfile.mkdtemp(prefix="journey-")
    subprocess.run([os.path.join(build, "tools", "layout", "layout"), folder, os.path.join(source, "data"),
                    os.path.join(source, "templates")], check=True, stdout=subprocess.DEVNULL)
    shutil.copy(os.path.join(build, "program", "chiryo-daicho"), folder)
    return folder


def plain(text):
    """A text as compared: without blanks, pauses and colons, and with the mark ※ as it is read."""
    return re.sub(r"[\s、:：]", "", text.replace("※", "コメジルシ"))


class Road:
    """One run of the program, worked by keys and followed by ear."""

    # Controls that speak a sentence of their own instead of their caption.
    OWN_WORDS = {
        "抽出する項目": "検索の文字選択と文字入力",
        "並び替える項目": "カーソルで並び替える項目を選択して下さい",
        "閉じる": "施術料金を閉じます",
    }

    def __init__(self, driver, folder):
        self.driver, self.folder = driver, folder
        self.mark = 0
        self.program = driver.launch(os.path.join(folder, "chiryo-daicho"), cwd=folder)

    # ---- what holds at every screen
    def at(self, title, *heard):
        """The window has come: it said its heading, nothing is nameless, and the focus says what stands there."""
        driver = self.driver
        driver.wait_window(title)
        for words in heard:
            driver.wait_spoken(words, self.mark)
        assert driver.nameless() == [], "%s: without a name: %s" % (title, driver.nameless())
        self.hears_the_focus(title)
        return self

    def back_at(self, title):
        """The window has the keyboard again after a message. Whether its focus is heard then depends on when the
        window manager gives it back, so a Tab and one back tell where the ear is."""
        self.driver.wait_window(title)
        for back in (False, True):
            self.mark = self.driver.mark()
            self.driver.tab(back)
            self.hears_the_focus(title)

    def hears_the_focus(self, title):
        """The last thing said is the control that has the keyboard, with its contents."""
        driver = self.driver

        def told():
            said = driver.spoken(self.mark)
            return bool(said) and self._stands(said[-1], driver.focus())

        end = time.monotonic() + 5
        while not told():
            node = driver.focus()
            assert time.monotonic() < end, "%s: the focus is on %r with %r, heard was %s" % (
                title, node and node.name, node and driver.value_of(node), driver.spoken(self.mark)[-3:])
            time.sleep(0.02)
        self.mark = driver.mark()

    def _stands(self, said, node):
        if node is None:
            return False
        name, said = plain(node.name), plain(said)
        if node.role in ("text", "paragraph"):
            return said == name + plain(node.text)
        if node.role in ("check box", "radio button"):
            state = "" if node.role == "radio button" else "チェック有り" if node.has("checked") else "チェック無し"
            return said.endswith(state) and name.endswith(said[:len(said) - len(state)])
        if node.role in ("table", "table cell", "combo box", "page tab list"):
            return name in said or said in name or said == plain(self.OWN_WORDS.get(node.caption or "", "?"))
        return said == name or said == self.OWN_WORDS.get(node.name)

    def walk(self, steps, title):
        """So many tabs, each of which must say where it led to."""
        for _ in range(steps):
            self.mark = self.driver.mark()
            self.driver.tab()
            self.hears_the_focus(title)

    # ---- doing
    def press(self, button, nth=0):
        node = self.driver.find("push button", button, self.driver.active(), nth)
        self.driver.focus_on(node)
        self.mark = self.driver.mark()
        self.driver.keys("space")

    def fill(self, **fields):
        for name, text in fields.items():
            self.driver.type_into(name, text)

    def write(self, name, text):
        self.driver.type_into(name, text)

    def write_combo(self, name, text):
        """Types into a list that takes other texts too."""
        self.driver.focus_on(self.driver.find("combo box", name))
        self.driver.keys("ctrl+a")
        self.driver.type(text)
        self.driver.keys("Tab")

    def question(self, text, answer):
        """The question is asked in these words, heard, and answered by the button."""
        box = self.driver.message()
        assert plain(text) in plain(box.text), "asked was %r, not %r" % (box.text, text)
        self.driver.wait_spoken(re.compile(re.escape(text)), self.mark)
        assert answer in box.buttons, box.buttons
        self.mark = self.driver.mark()
        box.answer(answer)

    def shows(self, name, text):
        """The field comes to show this text."""
        end = time.monotonic() + 5
        while plain(self.driver.read(name)) != plain(text):
            assert time.monotonic() < end, "%s shows %r, not %r" % (name, self.driver.read(name), text)
            time.sleep(0.02)

    def lines(self, title, wanted):
        """Fields and contents of the window, from top to bottom, each heard by Tab."""
        driver = self.driver
        assert driver.fields() == wanted, "%s: %s" % (title, driver.fields())
        for name, contents in wanted[1:]:
            self.mark = driver.mark()
            driver.keys("Tab")
            driver.wait_spoken("%s:、%s" % (name, contents), self.mark)
        self.mark = driver.mark()

    # ---- stretches that all roads share
    def open_the_program(self):
        self.at("トピックス", "治療台帳を起動しました", "このバージョンのお知らせです。")
        self.press("OK")
        self.at("選択")

    def new_patient(self, number, name, kana, sex, born, born_in_era):
        self.press("電子カルテ")
        self.at("検索", "検索")
        self.press("新規作成")
        if number == 1:
            self.at("無データ", "データがありません。、新規データを追加しますか？、記入後には、登録ボタンを押してください。")
            self.press("ＯＫ")
        self.at("治療台帳")
        for field, text in (("患者ID", str(number)), ("※氏名", name), ("※フリガナ", kana), ("※性別", sex),
                            ("※生年月日", born), ("郵便番号", "000-0001"), ("住所1", "架空県みほん市１－１")):
            self.write(field, text)
        self.press("登録")
        self.question("登録しますか？", "OK")
        self.press("和暦")
        self.shows("※生年月日", born_in_era)
        self.walk(3, "治療台帳")

    def new_claim(self, insurance, treatment, holder):
        self.press("表示の患者の新規レセプト作成")
        self.at("新規レセプト作成", "表示患者の新規のレセプトを作成します。")
        self.press("ＯＫ")
        self.at("選択チェック", "各ラジオボタンからそれぞれ選択してください。")
        self.walk(2, "選択チェック")
        self.driver.check(insurance)
        self.driver.check(treatment)
        self.driver.check(holder)
        self.press("ＯＫ")
        self.at("保険申請", "保険申請、コメジルシは必ず入力してください")

    def days(self, codes, visits=()):
        self.driver.page("治療")
        for day, code in codes:
            self.write("%d日 治療内容" % day, code)
        for day, entry in visits:
            self.write("%d日 往療人数" % day, entry)

    def store(self, *sums):
        """登録 of the claim; the sums are heard as the result."""
        self.press("登録")
        self.question("更新しますか？", "はい")
        self.driver.wait_window("保険申請")
        self.driver.wait_spoken("登録しました、合計 %s、一部負担金 %s、請求額 %s" % sums, self.mark)

    def print_claim(self, button, title):
        before = len(self.driver.printed())
        self.press(button)
        self.at("レセプト印刷", "印刷する用紙を選択して、ＯＫを押してください。")
        self.press("ＯＫ")
        self.question("レセプトデータの印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。", "OK")
        paper, = self.driver.wait_printed(before)
        assert paper.title == title, paper.title
        assert paper.pages == 1, paper.pages
        self.at("保険申請")
        return paper

    def end(self):
        """終了 from the main menu: the settings are written and the program ends of itself."""
        settings = os.path.join(self.folder, "qv.dat")
        os.utime(settings, (0, 0))
        self.press("終了")
        assert self.program.wait() == 0, self.program.output
        with open(settings, "rb") as written:
            text = written.read().decode("cp932")
        assert len(re.findall(r'"[^"]*"', text)) == 90, text
        assert os.path.getmtime(settings) > 1e9, "qv.dat was not written"


def expect_on(paper, *texts):
    for text in texts:
        assert paper.has(text), "%r is not on the paper:\n%s" % (text, paper.text())


def run(build, source, *journeys):
    """Runs each journey on a private display; a failure leaves its pictures and speech next to the message."""
    Desk = import_driver(source)
    for journey in journeys:
        folder = lay_out(build, source)
        began = time.monotonic()
        try:
            with Desk(cups=True, clock="2024-11-05 10:00:00", screen="1280x800x24") as driver:
                try:
                    journey(Road(driver, folder))
                except BaseException:
                    traces = os.path.join(build, "journey", journey.__name__)
                    os.makedirs(traces, exist_ok=True)
                    driver.report(traces)
                    print("%s failed; traces in %s" % (journey.__name__, traces))
                    raise
        finally:
            shutil.rmtree(folder, ignore_errors=True)
        print("%s: %.1f s" % (journey.__name__, time.monotonic() - began))
