#include "inspect/set/OutputCapture.hpp"

#include <iostream>
#include <new>

namespace zeb {

OutputCapture::OutputCapture() : m_before(std::cout.rdbuf(&m_buffer)) {}

OutputCapture::~OutputCapture() { std::cout.rdbuf(m_before); }

const std::string& OutputCapture::text() const {
  if (m_buffer.isCut) throw std::bad_alloc();
  return m_buffer.text;
}

std::streamsize OutputCapture::Buffer::xsputn(const char* data, std::streamsize count) {
  if (std::this_thread::get_id() == owner) {
    const std::lock_guard lock(mutex);
    try {
      text.append(data, static_cast<std::size_t>(count));
    } catch (const std::bad_alloc&) {
      isCut = true;
    }
  }
  return count;
}

OutputCapture::Buffer::int_type OutputCapture::Buffer::overflow(int_type character) {
  if (traits_type::eq_int_type(character, traits_type::eof())) return traits_type::not_eof(character);
  const char c = traits_type::to_char_type(character);
  xsputn(&c, 1);
  return character;
}

}  // namespace zeb
