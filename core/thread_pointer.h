// A pointer that each thread holds for itself, one for each type T. GCC on
// Windows emulates thread-local variables: every access is several calls
// into the threads library, a lock among them, which made up a twelfth of
// a COM call under wine. There the pointer lives in a slot of the system's
// own, read with one call; elsewhere it is a thread-local variable.
#pragma once

namespace tamrel {

#ifdef _WIN32
namespace detail {
// A slot of the system's, taken when first asked for and given back when
// the library is unloaded; not valid where the system had none left, and
// the pointer then goes the emulated way.
class ThreadSlot {
public:
    ThreadSlot();
    ~ThreadSlot();
    ThreadSlot(const ThreadSlot&) = delete;
    ThreadSlot& operator=(const ThreadSlot&) = delete;
    bool valid() const { return index_ != kNone; }
    void* get() const;
    void set(void* p) const;

private:
    static constexpr unsigned long kNone = 0xFFFFFFFFul;  // TLS_OUT_OF_INDEXES
    unsigned long index_;
};
}  // namespace detail

template <class T>
class ThreadPointer {
public:
    static T* get() {
        const detail::ThreadSlot& s = slot();
        return s.valid() ? static_cast<T*>(s.get()) : emulated;
    }
    static void set(T* p) {
        const detail::ThreadSlot& s = slot();
        if (s.valid())
            s.set(const_cast<void*>(static_cast<const void*>(p)));
        else
            emulated = p;
    }

private:
    // A local: the library's statics may use it while they are made.
    static const detail::ThreadSlot& slot() {
        static const detail::ThreadSlot s;
        return s;
    }
    static inline constinit thread_local T* emulated = nullptr;
};
#else
template <class T>
class ThreadPointer {
public:
    static T* get() { return value; }
    static void set(T* p) { value = p; }

private:
    static inline constinit thread_local T* value = nullptr;
};
#endif

}  // namespace tamrel
