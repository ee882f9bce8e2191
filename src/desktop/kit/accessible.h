// What screen readers see of the widgets that paint themselves. Knows their public side only.
#pragma once

namespace lorvane::desktop {

/// Makes cells known as fields with their text, and painted text as text. Once is enough; more does no harm.
void installAccessibility();

}  // namespace lorvane::desktop
