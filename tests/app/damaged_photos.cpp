// Writes photos with damaged headers: damaged_photos FOLDER FORMAT COUNT. The same ones every time.

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <span>
#include <string>

#include "export/encoded_photos.h"

namespace {

constexpr std::size_t kHeader = 600;  // bytes, about what stands before the pixels

QImage SmallPicture() {
    QImage image(96, 64, QImage::Format_RGB32);
    for (int i = 0; i < 96 * 64; ++i) {
        const int x = i % 96;
        const int y = i / 96;
        image.setPixel(x, y, qRgb(x * 2, y * 4, (x ^ y) + x * y % 60));
    }
    return image;
}

class Damage {
  public:
    explicit Damage(unsigned seed) : random_(seed) {}

    void Do(std::string& file) {
        const std::size_t at = Below(std::min(file.size(), kHeader));
        switch (Below(5)) {
            case 0:
                file.resize(at);
                return;
            case 1:
                return Fill(file, at, '\0');
            case 2:
                return Fill(file, at, '\xFF');
            case 3:
                file.insert(at, 1 + Below(8), static_cast<char>(Below(256)));
                return;
            default:
                for (std::size_t changes = 1 + Below(8); changes > 0; --changes) {
                    file[Below(std::min(file.size(), kHeader))] = static_cast<char>(Below(256));
                }
        }
    }

  private:
    std::size_t Below(std::size_t end) { return random_() % end; }
    void Fill(std::string& file, std::size_t at, char byte) {
        file.replace(at, std::min(1 + Below(4), file.size() - at), 1 + Below(4), byte);
    }

    std::mt19937 random_;
};

}  // namespace

int main(int argc, char** argv) {
    const std::span<char*> words(argv, static_cast<std::size_t>(argc));
    if (words.size() != 4) {
        std::cerr << "damaged_photos FOLDER FORMAT COUNT\n";
        return 2;
    }
    const std::string format = words[2];
    const std::string whole = vendrel::test::Encoded(SmallPicture(), format);
    const int count = std::atoi(words[3]);
    for (int number = 0; number < count; ++number) {
        std::string file = whole;
        Damage(static_cast<unsigned>(number)).Do(file);
        std::filesystem::path name(words[1]);
        name.append(format).concat(std::to_string(number)).concat(".").concat(format);
        std::ofstream(name, std::ios::binary) << file;
    }
    return 0;
}
