#pragma once

#include <QStringView>

#include <array>
#include <cstddef>
#include <cstdint>

namespace meridax {

/// Hands UTF-16 text on as UTF-8 in pieces, without allocating. A surrogate without its partner
/// becomes "?", as QString::toUtf8() has it.
class Utf8Stream
{
public:
    using Write = void (*)(std::intptr_t target, const char *utf8, std::size_t size);

    Utf8Stream(Write write, std::intptr_t target)
        : m_write(write)
        , m_target(target)
    {
    }

    void append(QStringView text)
    {
        for (qsizetype i = 0; i < text.size(); ++i) {
            const QChar unit = text[i];
            if (!unit.isSurrogate())
                append(char32_t(unit.unicode()));
            else if (unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
                append(QChar::surrogateToUcs4(unit, text[++i]));
            else
                append(U'?');
        }
    }

    void flush()
    {
        if (m_used > 0)
            m_write(m_target, m_buffer.data(), m_used);
        m_used = 0;
    }

private:
    void append(char32_t c)
    {
        if (m_used + 4 > m_buffer.size())
            flush();
        if (c < 0x80) {
            put(c);
            return;
        }
        if (c < 0x800) {
            put(0xC0 | c >> 6);
        } else {
            if (c < 0x10000) {
                put(0xE0 | c >> 12);
            } else {
                put(0xF0 | c >> 18);
                put(0x80 | (c >> 12 & 0x3F));
            }
            put(0x80 | (c >> 6 & 0x3F));
        }
        put(0x80 | (c & 0x3F));
    }

    void put(char32_t byte) { m_buffer[m_used++] = static_cast<char>(byte); }

    const Write m_write;
    const std::intptr_t m_target;
    std::array<char, 512> m_buffer;
    std::size_t m_used = 0;
};

} // namespace meridax
