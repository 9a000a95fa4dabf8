// How jemalloc is set up in the tool. The library leaves this to its callers.

/// Objects of up to 256 bytes, of which a conversion makes one after the other, come in slabs of 16
/// pages: fewer of them are opened and closed than of jemalloc's own choice, one page for some.
// NOLINTNEXTLINE(readability-identifier-naming): the name that jemalloc looks for
extern "C" char const* const malloc_conf = "slab_sizes:1-256:16";
