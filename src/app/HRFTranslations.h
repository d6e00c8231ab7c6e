#pragma once

namespace HRFTranslations {

/// Makes the program speak the first of the user's languages that there are texts in. To be called
/// once, before the first text is shown.
void install();

} // namespace HRFTranslations
