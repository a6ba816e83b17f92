#pragma once

/// The style, the palette and the font that every window has: Fusion, light, Arial 8.25. To be called once, before the
/// first window.
void StelUiterlijkIn();
