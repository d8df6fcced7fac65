// SPDX-License-Identifier: MIT
#include "LMIdleMemory.h"

#include <chrono>
#include <cstdint>

#include <link.h>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

/// The loader tells addresses as numbers.
template <class T>
T* pointerTo(std::uintptr_t address) {
    return reinterpret_cast<T*>(address); // NOLINT(performance-no-int-to-ptr)
}

bool hasTextRelocations(const dl_phdr_info& object) {
    for (const auto* header = object.dlpi_phdr; header != object.dlpi_phdr + object.dlpi_phnum;
         ++header) {
        if (header->p_type != PT_DYNAMIC)
            continue;
        const auto* entry = pointerTo<const ElfW(Dyn)>(object.dlpi_addr + header->p_vaddr);
        for (; entry->d_tag != DT_NULL; ++entry) {
            if (entry->d_tag == DT_TEXTREL)
                return true;
        }
    }
    return false;
}

/// Unmaps the pages of segments that nobody can have written to: dropping a page that was changed
/// after it was mapped would bring back the one in the file.
int releaseReadOnlySegments(dl_phdr_info* object, std::size_t, void*) {
    if (hasTextRelocations(*object))
        return 0;
    const auto pageSize = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    for (const auto* header = object->dlpi_phdr; header != object->dlpi_phdr + object->dlpi_phnum;
         ++header) {
        if (header->p_type != PT_LOAD || (header->p_flags & PF_W) != 0)
            continue;
        const std::uintptr_t begin = (object->dlpi_addr + header->p_vaddr) & ~(pageSize - 1);
        const std::uintptr_t end = object->dlpi_addr + header->p_vaddr + header->p_memsz;
        madvise(pointerTo<void>(begin), end - begin, MADV_DONTNEED);
    }
    return 0;
}

} // namespace

LMIdleMemory::LMIdleMemory(QObject* parent) : QObject(parent) {
    m_timer.setSingleShot(true);
    m_timer.setInterval(1s);
    connect(&m_timer, &QTimer::timeout, this, [] {
        malloc_trim(0);
        dl_iterate_phdr(releaseReadOnlySegments, nullptr);
    });
}
