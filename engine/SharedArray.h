// The ownership rule of the blocks' arrays and texts: shared by copies, released once, never while handed out.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstring>
#include <memory>
#include <vector>

namespace zeb {

/// An array that copies share and that is released once, when its last owner goes.
///
/// A pointer that get() returned stays valid until this object is destroyed, also after allocate() or an assignment
/// put another array in its place. Arrays that nobody asked for are released as soon as they are replaced, so that a
/// file that repeats a count does not pile up memory. An empty object owns nothing and costs no allocation.
/// Reading from several threads is safe; allocate() and assignment need the object to themselves.
template <class T>
class SharedArray {
 public:
  SharedArray() : m_current(), m_size(0), m_earlier(), m_handedOut(false) {}
  /// Shares the other's current array; the other's earlier ones stay with the other.
  SharedArray(const SharedArray& other)
      : m_current(other.m_current), m_size(other.m_size), m_earlier(), m_handedOut(false) {}
  ~SharedArray() = default;

  /// Shares the other's current array (or becomes empty as the other is).
  SharedArray& operator=(const SharedArray& other) {
    if (this != &other && m_current != other.m_current) replaceBy(other.m_current, other.m_size);
    return *this;
  }

  /// The current array, null while there is none. It belongs to this object and its copies.
  T* get() const {
    if (m_current && !m_handedOut.load(std::memory_order_relaxed)) m_handedOut.store(true, std::memory_order_relaxed);
    return m_current.get();
  }

  /// Number of elements of the current array, 0 while there is none.
  std::size_t size() const { return m_current ? m_size : 0; }

  /// Copies elements 1 to size() - 1 to the same places of `out`: the entries of the library's 1-based lists. Nothing
  /// is handed out.
  void copyEntries(T* out) const {
    for (std::size_t i = 1; i < size(); ++i) out[i] = m_current.get()[i];
  }

  /// Makes this object empty.
  void release() { replaceBy(std::shared_ptr<T>(), 0); }

  /// Makes a new array of `n` value-initialised elements the current one and returns it for filling; this pointer
  /// alone, without a get(), does not outlive the next replacement. The caller bounds `n`.
  T* allocate(std::size_t n) {
    replaceBy(std::shared_ptr<T>(new T[n](), std::default_delete<T[]>()), n);
    return m_current.get();
  }

  /// Makes this object empty until makeRoom(), which then makes a new array of `n` elements.
  void announce(std::size_t n) { replaceBy(std::shared_ptr<T>(), n); }

  /// Makes the array that was announced, if it is still to be made.
  void makeRoom() {
    if (!m_current && m_size > 0) allocate(m_size);
  }

 private:
  void replaceBy(std::shared_ptr<T> next, std::size_t size) {
    if (m_handedOut.load(std::memory_order_relaxed)) keepCurrent();
    m_current.swap(next);
    m_size = size;
    m_handedOut.store(false, std::memory_order_relaxed);
  }

  void keepCurrent() {
    if (!m_earlier) m_earlier.reset(new std::vector<std::shared_ptr<T>>());
    m_earlier->push_back(m_current);
  }

  std::shared_ptr<T> m_current;
  std::size_t m_size;  // without a current array: of the announced one
  std::unique_ptr<std::vector<std::shared_ptr<T>>> m_earlier;
  mutable std::atomic<bool> m_handedOut;
};

/// A text with the ownership of SharedArray.
class OwnedText {
 public:
  OwnedText() = default;
  /// The empty text in a buffer of `size` characters, all NUL.
  explicit OwnedText(std::size_t size) { m_text.allocate(size); }

  /// The text, ended by NUL; null until one is assigned.
  const char* get() const { return m_text.get(); }

  /// Stores a copy of the first `length` characters of `text` and fills its buffer up with NULs: one at least, and to
  /// `size` characters. A null `text` needs length 0.
  void assign(const char* text, std::size_t length, std::size_t size = 0) {
    char* const copy = m_text.allocate(length < size ? size : length + 1);
    if (length > 0) std::memcpy(copy, text, length);
  }

 private:
  SharedArray<char> m_text;
};

}  // namespace zeb
