#include "core/thread_pointer.h"

#ifdef _WIN32
#include <windows.h>

namespace tamrel::detail {

ThreadSlot::ThreadSlot() : index_(TlsAlloc()) {}
ThreadSlot::~ThreadSlot() {
    if (valid()) TlsFree(index_);
}
bool ThreadSlot::valid() const { return index_ != TLS_OUT_OF_INDEXES; }
void* ThreadSlot::get() const { return TlsGetValue(index_); }
void ThreadSlot::set(void* p) const { TlsSetValue(index_, p); }

}  // namespace tamrel::detail
#endif
