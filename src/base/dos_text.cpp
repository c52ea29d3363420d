#include "base/dos_text.hpp"

#include <algorithm>

#include "base/code_page.hpp"

namespace korven::base {

namespace {

struct Coppia {
    unsigned char dos, windows;
};

constexpr Coppia coppie[] = {{128, 199}, {129, 252}, {130, 233}, {131, 226}, {132, 228}, {133, 224},
                             {134, 229}, {135, 231}, {136, 234}, {137, 235}, {138, 232}, {139, 239},
                             {140, 238}, {141, 236}, {142, 196}, {143, 197}, {144, 201}, {145, 230},
                             {146, 198}, {147, 244}, {148, 246}, {149, 242}, {150, 251}, {151, 249},
                             {152, 255}, {153, 214}, {154, 252}, {160, 225}, {161, 237}, {162, 243},
                             {163, 250}, {164, 241}, {165, 209}, {248, 176}};

}  // namespace

std::string daDos(std::string_view byte) {
    std::string windows(byte);
    for (char& c : windows) {
        const auto coppia = std::find_if(std::begin(coppie), std::end(coppie), [c](Coppia p) {
            return p.dos == static_cast<unsigned char>(c);
        });
        if (coppia != std::end(coppie)) c = static_cast<char>(coppia->windows);
    }
    return daCp1252(windows);
}

}  // namespace korven::base
