#include "platform/text/system_fault.h"

#include <QFileInfo>
#include <cerrno>
#include <cstring>

namespace text {
namespace {

struct Reason {
  int error;
  const char16_t* words;
};
constexpr Reason kReasons[] = {
    {ENOENT, u"見つかりません。"},
    {ENOTDIR, u"見つかりません。"},
    {EISDIR, u"ファイルではなくフォルダです。"},
    {EACCES, u"許可がありません。"},
    {EPERM, u"許可がありません。"},
    {EROFS, u"書き込みが禁止されています。"},
    {ENOSPC, u"ディスクの空きがありません。"},
    {EDQUOT, u"ディスクの空きがありません。"},
    {EIO, u"ディスクが正しく動いていません。"},
};

QString reasonOf(int error) {
  for (const Reason& reason : kReasons)
    if (reason.error == error) return QString::fromUtf16(reason.words);
  return QString::fromLocal8Bit(std::strerror(error));
}

}  // namespace

Fault systemFault(FileAction action, const QString& path, int error) {
  const QString what = action == FileAction::Read ? QStringLiteral("を読むことができません。")
                                                  : QStringLiteral("に書き込むことができません。");
  return Fault{u'「' + QFileInfo(path).fileName() + u'」' + what + reasonOf(error) + u'（' + path + u'）'};
}

}  // namespace text
