#pragma once

#include <QByteArray>

namespace report {

/// Rewrites a document of the page library into its compact form: small objects go into compressed object
/// streams, the cross reference into a stream, lengths into their dictionaries. It also says what the page
/// library cannot say: that the document is Japanese, tagged, one Document element, and that its title is
/// to be shown. Anything that does not look as expected is returned unchanged: a larger file prints, too.
QByteArray packPdf(const QByteArray& pdf);

}  // namespace report
