#pragma once

/// Tells assistive programs what the widgets are that are drawn here: the stars of a rating are a
/// slider, the artwork pane is a picture. Without it they would be areas of no kind. To be called
/// by these widgets when they are made; once is enough.
void HRFInstallAccessibility();
