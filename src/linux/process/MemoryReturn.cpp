// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/MemoryReturn.h"

#include <algorithm>
#include <elf.h>
#include <link.h>
#include <malloc.h>
#include <span>
#include <sys/auxv.h>
#include <sys/mman.h>
#include <unistd.h>

namespace vellumry {

namespace {

/// The loader has written into the code of such a library: it is not in the file like that.
bool hasWrittenCode(const dl_phdr_info& library, std::span<const ElfW(Phdr)> segments) {
    const auto dynamic = std::ranges::find(segments, ElfW(Word)(PT_DYNAMIC), &ElfW(Phdr)::p_type);
    if (dynamic == segments.end())
        return true; // unknown
    const auto* entry = reinterpret_cast<const ElfW(Dyn)*>(library.dlpi_addr + dynamic->p_vaddr);
    for (; entry->d_tag != DT_NULL; ++entry) {
        if (entry->d_tag == DT_TEXTREL || (entry->d_tag == DT_FLAGS && (entry->d_un.d_val & DF_TEXTREL) != 0))
            return true;
    }
    return false;
}

int returnCodeOf(dl_phdr_info* library, std::size_t, void*) {
    const std::span segments(library->dlpi_phdr, library->dlpi_phnum);
    // The kernel's own code comes from no file.
    if (library->dlpi_addr == getauxval(AT_SYSINFO_EHDR) || hasWrittenCode(*library, segments))
        return 0;
    const auto page = ElfW(Addr)(sysconf(_SC_PAGESIZE));
    for (const ElfW(Phdr) & segment : segments) {
        if (segment.p_type != PT_LOAD || (segment.p_flags & PF_W) != 0)
            continue;
        const ElfW(Addr) first = (library->dlpi_addr + segment.p_vaddr) / page * page;
        const ElfW(Addr) end = library->dlpi_addr + segment.p_vaddr + segment.p_memsz;
        // Refused, the pages stay, and that is all.
        (void)madvise(reinterpret_cast<void*>(first), end - first, MADV_DONTNEED);
    }
    return 0;
}

} // namespace

void returnLargeBlocks() {
#ifdef __GLIBC__
    constexpr int largeBlock = 512 * 1024;
    mallopt(M_MMAP_THRESHOLD, largeBlock);
    mallopt(M_TRIM_THRESHOLD, largeBlock);
    // One heap for the main thread and one for all others. A dozen, most of which hold what one thread once needed,
    // take a megabyte more.
    mallopt(M_ARENA_MAX, 2);
#endif
}

void returnCode() {
    dl_iterate_phdr(&returnCodeOf, nullptr);
}

} // namespace vellumry
