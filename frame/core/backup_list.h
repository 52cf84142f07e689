#pragma once

#include <QByteArray>
#include <QMap>
#include <QSet>
#include <QString>

#include "platform/text/result.h"

namespace frame {

/// The list of sums next to the copies, in the form that `b2sum -c b2sums.txt` checks: one line a
/// file, the sum, two blanks, the name within the folder. A comment line (#) of the same form announces
/// the sum of a copy that is about to be made.
class BackupList {
 public:
  static QString pathIn(const QString& folder);

  /// The list of a folder, empty where there is none.
  static BackupList read(const QString& folder);
  text::Done write(const QString& folder) const;

  /// "" where the name is not listed.
  QByteArray sumOf(const QString& name) const { return m_sums.value(name); }
  void put(const QString& name, const QByteArray& sum) { m_sums.insert(name, sum); }
  /// For a file that is no copy any more: it changes.
  void takeOut(const QString& name) { m_sums.remove(name); }
  /// Announces the sum that the name is about to have.
  void announce(const QString& name, const QByteArray& sum) { m_coming.insert(name, sum); }
  void forgetAnnounced() { m_coming.clear(); }
  /// All sums, present or announced, that are listed for any of the names.
  QSet<QByteArray> sumsOfAny(const QStringList& names) const;
  /// Takes out the names of files that are no longer in the folder.
  void keepStanding(const QString& folder);

 private:
  QMap<QString, QByteArray> m_sums, m_coming;
};

}  // namespace frame
