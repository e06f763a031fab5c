#include "tools/fedeck_Base64.h"

namespace {

constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

}  // namespace

void fedeck_Base64Writer::encodeGroup(unsigned char const* group) {
    if (m_used + 4 > kBufferSize) flush();
    unsigned const bits = unsigned(group[0]) << 16 | unsigned(group[1]) << 8 | group[2];
    char* out = m_buffer + m_used;
    out[0] = kAlphabet[bits >> 18];
    out[1] = kAlphabet[(bits >> 12) & 0x3F];
    out[2] = kAlphabet[(bits >> 6) & 0x3F];
    out[3] = kAlphabet[bits & 0x3F];
    m_used += 4;
}

void fedeck_Base64Writer::Write(void const* bytes, std::size_t count) {
    auto const* in = static_cast<unsigned char const*>(bytes);
    // Complete a group begun by the last call.
    while (m_pendingCount > 0 && m_pendingCount < 3 && count > 0) {
        m_pending[m_pendingCount++] = *in++;
        --count;
    }
    if (m_pendingCount == 3) {
        encodeGroup(m_pending);
        m_pendingCount = 0;
    }
    for (; count >= 3; in += 3, count -= 3) encodeGroup(in);
    for (; count > 0; --count) m_pending[m_pendingCount++] = *in++;
}

void fedeck_Base64Writer::Finish() {
    if (m_pendingCount > 0) {
        unsigned char group[3] = {m_pending[0], 0, 0};
        if (m_pendingCount == 2) group[1] = m_pending[1];
        encodeGroup(group);
        m_buffer[m_used - 1] = '=';
        if (m_pendingCount == 1) m_buffer[m_used - 2] = '=';
        m_pendingCount = 0;
    }
    flush();
}

void fedeck_Base64Writer::flush() {
    if (m_used > 0) std::fwrite(m_buffer, 1, m_used, m_out);
    m_used = 0;
}
