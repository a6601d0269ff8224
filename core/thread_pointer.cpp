#include "core/thread_pointer.h"

#ifdef _WIN32
#include <windows.h>

namespace tamrel::detail {

static_assert(TLS_OUT_OF_INDEXES == 0xFFFFFFFFul);

ThreadSlot::ThreadSlot() : index_(TlsAlloc()) {}
ThreadSlot::~ThreadSlot() {
    if (valid()) TlsFree(index_);
}
void* ThreadSlot::get() const { return TlsGetValue(index_); }
void ThreadSlot::set(void* p) const { TlsSetValue(index_, p); }

}  // namespace tamrel::detail
#endif
