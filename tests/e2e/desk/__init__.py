"""A desktop of its own for the tests: a display that nobody sees, its pointer, keys, pictures and clipboard."""
