// Carries the precompiled headers; has no code of its own.
