#pragma once

namespace claims {

/// PrintKind of a single print: the acupuncture or the massage button.
enum class PrintKind { Acupuncture, Massage };

}  // namespace claims
