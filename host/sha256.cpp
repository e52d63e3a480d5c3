#include "host/sha256.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstdio>
#include <vector>

namespace host {
namespace {

using Word = std::uint32_t;

// The first 32 bits of the fractions of the cube roots of the first 64 primes, FIPS 180-4.
constexpr Word round_words[64] = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

using State = std::array<Word, 8>;

void Digest(State& state, const unsigned char* block) {
    Word words[64];
    for (int i = 0; i < 16; ++i) {
        words[i] = static_cast<Word>(block[4 * i]) << 24 | static_cast<Word>(block[4 * i + 1]) << 16 |
                   static_cast<Word>(block[4 * i + 2]) << 8 | block[4 * i + 3];
    }
    for (int i = 16; i < 64; ++i) {
        const Word early = words[i - 15], late = words[i - 2];
        words[i] = words[i - 16] + words[i - 7] + (std::rotr(early, 7) ^ std::rotr(early, 18) ^ early >> 3) +
                   (std::rotr(late, 17) ^ std::rotr(late, 19) ^ late >> 10);
    }
    auto [a, b, c, d, e, f, g, h] = state;
    for (int i = 0; i < 64; ++i) {
        const Word one = h + (std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25)) + ((e & f) ^ (~e & g)) +
                         round_words[i] + words[i];
        const Word other =
            (std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
        h = g, g = f, f = e, e = d + one, d = c, c = b, b = a, a = one + other;
    }
    const State added = {a, b, c, d, e, f, g, h};
    for (std::size_t i = 0; i < state.size(); ++i) {
        state[i] += added[i];
    }
}

} // namespace

std::string Sha256(std::istream& in) {
    constexpr std::size_t block = 64;
    State state = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                   0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
    std::uint64_t length = 0;
    std::vector<unsigned char> bytes;
    do {
        bytes.resize(block * 1024);
        in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        bytes.resize(static_cast<std::size_t>(in.gcount()));
        length += bytes.size();
        if (!in) { // the end: a one, zeros, and the length in bits
            bytes.push_back(0x80);
            bytes.resize((bytes.size() + 8 + block - 1) / block * block);
            for (std::size_t i = 0; i < 8; ++i) {
                bytes[bytes.size() - 1 - i] = static_cast<unsigned char>(length * 8 >> 8 * i);
            }
        }
        for (std::size_t at = 0; at < bytes.size(); at += block) {
            Digest(state, &bytes[at]);
        }
    } while (in);
    std::string digits;
    for (const Word word : state) {
        char text[9];
        std::snprintf(text, sizeof text, "%08x", word);
        digits += text;
    }
    return digits;
}

} // namespace host
