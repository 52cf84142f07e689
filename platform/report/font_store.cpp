#include "platform/report/font_store.h"

#include <fontconfig/fontconfig.h>

namespace report {

namespace {

struct FontFile {
  QString path;
  int number = 0;
  QStringList families;  // the same name in several languages
};

using Pattern = std::unique_ptr<FcPattern, decltype([](FcPattern* p) { FcPatternDestroy(p); })>;
using CharSet = std::unique_ptr<FcCharSet, decltype([](FcCharSet* s) { FcCharSetDestroy(s); })>;

const char* familyName(Typeface face) { return face == Typeface::Mincho ? "IPAexMincho" : "IPAexGothic"; }

/// The font that is nearest to the family; with a character: the nearest one that has it, or an empty path.
FontFile nearest(const char* family, char32_t character) {
  Pattern wanted(FcPatternCreate());
  FcPatternAddString(wanted.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(family));
  FcPatternAddString(wanted.get(), FC_LANG, reinterpret_cast<const FcChar8*>("ja"));
  FcPatternAddBool(wanted.get(), FC_SCALABLE, FcTrue);
  CharSet charset(FcCharSetCreate());
  if (character) {
    FcCharSetAddChar(charset.get(), character);
    FcPatternAddCharSet(wanted.get(), FC_CHARSET, charset.get());
  }
  FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
  FcDefaultSubstitute(wanted.get());
  FcResult result;
  Pattern found(FcFontMatch(nullptr, wanted.get(), &result));
  FcChar8* path = nullptr;
  FcChar8* name = nullptr;
  FcCharSet* has = nullptr;
  FontFile file;
  if (!found || FcPatternGetString(found.get(), FC_FILE, 0, &path) != FcResultMatch) return file;
  if (character && (FcPatternGetCharSet(found.get(), FC_CHARSET, 0, &has) != FcResultMatch ||
                    !FcCharSetHasChar(has, character)))
    return file;
  file.path = QString::fromUtf8(reinterpret_cast<const char*>(path));
  FcPatternGetInteger(found.get(), FC_INDEX, 0, &file.number);
  for (int i = 0; FcPatternGetString(found.get(), FC_FAMILY, i, &name) == FcResultMatch; ++i)
    file.families << QString::fromUtf8(reinterpret_cast<const char*>(name));
  return file;
}

}  // namespace

FontStore::FontStore() {
  FT_Library library = nullptr;
  FT_Init_FreeType(&library);
  m_library = FontLibrary(library, [](FT_Library l) { FT_Done_FreeType(l); });
}

Font* FontStore::open(const QString& path, int faceNumber) {
  if (path.isEmpty()) return nullptr;
  const auto key = std::pair(path, faceNumber);
  if (!m_opened.contains(key))
    m_opened[key] = Font::open(m_library, path, faceNumber & 0xffff, int(m_opened.size()));
  return m_opened[key].get();
}

Font* FontStore::font(Typeface face) {
  if (const auto known = m_faces.find(face); known != m_faces.end()) return known->second;
  const FontFile file = nearest(familyName(face), 0);
  return m_faces[face] = open(file.path, file.number);
}

Font* FontStore::fontFor(Typeface face, char32_t character) {
  Font* own = font(face);
  if (!own || own->has(character)) return own;
  const auto key = std::pair(face, character);
  if (const auto known = m_found.find(key); known != m_found.end()) return known->second;
  Font* found = search(face, character);
  return m_found[key] = found ? found : own;
}

Font* FontStore::search(Typeface face, char32_t character) {
  Font* sister = font(face == Typeface::Mincho ? Typeface::Gothic : Typeface::Mincho);
  if (sister && sister->has(character)) return sister;
  const FontFile file = nearest(familyName(face), character);
  Font* other = open(file.path, file.number);
  return other && other->has(character) ? other : nullptr;
}

bool fontInstalled() {
  const char* family = familyName(Typeface::Mincho);
  return nearest(family, 0).families.contains(QLatin1String(family));
}

}  // namespace report
