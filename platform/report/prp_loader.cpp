#include "platform/report/prp_loader.h"

#include <QDir>
#include <QFile>
#include <QStringDecoder>
#include <algorithm>

#include "platform/report/prp_item_line.h"

namespace report {

namespace {

class Loader {
 public:
  explicit Loader(const ReadTemplate& read) : m_read(read) {}

  Form load(const QString& fileName, QStringList chain) {
    const auto content = m_read(fileName);
    if (!content.ok()) throw PrpFault{fileName, 0, content.fault().message};
    chain << fileName;
    Form form;
    bool derived = false;
    int number = 0;
    for (const QString& raw : content.value().split(u'\n')) {
      PrpLine line(fileName, ++number, QString(raw).remove(u'\r'));
      if (!line.empty()) readLine(line, form, derived, chain);
    }
    if (form.name.isEmpty()) throw PrpFault{fileName, 1, QStringLiteral("\"form\" and the name of the form")};
    form.files << fileName;
    return form;
  }

 private:
  void readLine(PrpLine& line, Form& form, bool& derived, const QStringList& chain) {
    const QString word = line.word("a kind of item");
    if (word == u"form") {
      form.name = line.word("the name of the form");
      line.end();
    } else if (form.name.isEmpty()) {
      line.fail(QStringLiteral("\"form\" first"));
    } else if (word == u"base") {
      readBase(line, form, derived, chain);
    } else if (word == u"title") {
      form.title = line.rest();
    } else if (word == u"paper") {
      readPaper(line, form);
    } else if (word == u"typeface") {
      form.face = line.take("gothic") ? Typeface::Gothic : Typeface::Mincho;
      if (form.face == Typeface::Mincho && !line.take("mincho"))
        line.fail(QStringLiteral("mincho or gothic"));
      line.end();
    } else if (word == u"block") {
      form.blocks << line.rest();
    } else if (isKindWord(word) && !(word == u"text" && changesText(line))) {
      addItems(line, form, readItemLine(word, line, form.face));
    } else {
      readDelta(word, line, form, derived);
    }
  }

  // "text NAME "new words"" changes an item of the base; "text NAME x y w h" is a new item.
  static bool changesText(const PrpLine& line) {
    PrpLine ahead = line;
    ahead.word("the name of an item");
    return ahead.nextIsText();
  }

  void readBase(PrpLine& line, Form& form, bool& derived, const QStringList& chain) {
    const QString base = line.word("the name of the base") + QStringLiteral(".PRP");
    line.end();
    if (derived || !form.items.empty()) line.fail(QStringLiteral("one base, before the first item"));
    if (chain.contains(base)) line.fail(QStringLiteral("a base that does not lead back to %1").arg(base));
    if (chain.size() > kMaxBases) line.fail(QStringLiteral("at most %1 bases").arg(kMaxBases));
    const QString name = form.name;
    const QString title = form.title;
    form = load(base, chain);
    form.name = name;
    if (!title.isEmpty()) form.title = title;
    derived = true;
  }

  static void readPaper(PrpLine& line, Form& form) {
    const Paper* paper = findPaper(line.word("a paper like A4 or JIS-B5"));
    if (!paper) line.fail(QStringLiteral("a paper like A4 or JIS-B5"));
    form.paper = *paper;
    form.landscape = line.take("landscape");
    if (!form.landscape) line.take("portrait");
    line.end();
  }

  static void addItems(PrpLine& line, Form& form, ItemLine added) {
    auto place = form.items.end();
    if (!added.neighbour.isEmpty()) {
      const int at = form.find(added.neighbour);
      if (at < 0) line.fail(QStringLiteral("the name of an item above, not %1").arg(added.neighbour));
      place = form.items.begin() + at + (added.before ? 0 : 1);
    }
    if (form.blocks.isEmpty()) form.blocks << QString();
    const int block = added.neighbour.isEmpty() ? int(form.blocks.size()) - 1
                                                : form.items[form.find(added.neighbour)].block;
    for (Item& item : added.items) {
      if (form.index.contains(item.name))
        line.fail(QStringLiteral("a new name, %1 stands already").arg(item.name));
      item.block = block;
      form.index.insert(item.name, -1);
    }
    const bool atEnd = place == form.items.end();
    const int first = int(form.items.size());
    form.items.insert(place, added.items.begin(), added.items.end());
    if (!atEnd) return form.reindex();
    for (int i = first; i < int(form.items.size()); ++i) form.index.insert(form.items[i].name, i);
  }

  static void readDelta(const QString& word, PrpLine& line, Form& form, bool derived) {
    static const QStringList words = {"move", "size", "font", "text", "drop", "show", "hide"};
    if (!words.contains(word)) line.fail(QStringLiteral("a kind of item or a change, not \"%1\"").arg(word));
    if (!derived) line.fail(QStringLiteral("\"base\" before a change"));
    const QStringList names = readNames(line);
    for (const QString& name : names)
      if (form.find(name) < 0) line.fail(QStringLiteral("the name of an item of the base, not %1").arg(name));
    if (word == u"drop") return drop(line, form, names);
    if (word == u"move") return move(line, form, names);
    change(word, line, form, names);
  }

  static void drop(PrpLine& line, Form& form, const QStringList& names) {
    line.end();
    std::erase_if(form.items, [&](const Item& item) { return names.contains(item.name); });
    form.reindex();
  }

  // A family moves as a whole: its first item goes to the given place, the others keep their distance.
  static void move(PrpLine& line, Form& form, const QStringList& names) {
    const Rect first = form.items[form.find(names.first())].rect;
    const double dx = line.number("the new left edge in mm") - first.x;
    const double dy = line.number("the new upper edge in mm") - first.y;
    line.end();
    for (const QString& name : names) {
      Item& item = form.items[form.find(name)];
      item.rect.x += dx;
      item.rect.y += dy;
      for (Placement& placement : item.placements) placement.rect.x += dx, placement.rect.y += dy;
    }
  }

  static void change(const QString& word, PrpLine& line, Form& form, const QStringList& names) {
    const PrpLine start = line;
    for (const QString& name : names) {
      Item& item = form.items[form.find(name)];
      line = start;
      if (word == u"size") {
        item.rect.w = line.number("the new width in mm");
        item.rect.h = line.number("the new height in mm");
      } else if (word == u"text") {
        item.text = line.text("a text in quotes");
      } else if (word == u"font") {
        if (!readOption(line, item)) line.fail(QStringLiteral("a font, a size, an align or a fit"));
        while (readOption(line, item)) {
        }
      } else {
        item.hidden = word == u"hide";
      }
      line.end();
    }
  }

  const ReadTemplate& m_read;
};

}  // namespace

text::Result<FormPtr> parseForm(const QString& fileName, const ReadTemplate& read) {
  try {
    return FormPtr(std::make_shared<Form>(Loader(read).load(fileName, {})));
  } catch (const PrpFault& fault) {
    return text::Fault{fault.message()};
  }
}

text::Result<FormPtr> loadForm(const QString& folder, const QString& fileName) {
  return parseForm(fileName, [&](const QString& name) -> text::Result<QString> {
    QFile file(QDir(folder).filePath(name));
    if (!file.open(QIODevice::ReadOnly)) return text::Fault{QStringLiteral("a template file of this name")};
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString content = utf8(file.readAll());
    if (utf8.hasError()) return text::Fault{QStringLiteral("UTF-8 text")};
    return content;
  });
}

}  // namespace report
