#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "convert/photo_decoder.h"

namespace vendrel {

/// A file descriptor that closes itself; -1 for none.
class Descriptor {
  public:
    explicit Descriptor(int number = -1) : number_(number) {}
    ~Descriptor() { Take(-1); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] int Number() const { return number_; }
    /// Closes what it held before.
    void Take(int number);

  private:
    int number_;
};

/// One photo being read by a process of its own, which finds the photo's bytes on its standard
/// input, shared memory for the pixels as descriptor 3, and answers on its standard output with
/// lines: "size W H" (upright), "percent P", then "picture W H" or "refused <what is wrong>". The
/// process ends with this object at the latest.
class DecodingChild {
  public:
    /// Starts reading. Throws FileError when the photo cannot be opened or the program not started.
    DecodingChild(const std::filesystem::path& program, const std::filesystem::path& photo);
    ~DecodingChild();
    DecodingChild(const DecodingChild&) = delete;
    DecodingChild& operator=(const DecodingChild&) = delete;

    /// Whether this is that photo, unchanged since.
    [[nodiscard]] bool Reads(const std::filesystem::path& photo) const;
    /// Waits until it is known. Throws FormatError.
    [[nodiscard]] BitmapSize Size();
    /// Waits for the pixels. Throws FormatError, and what `progress` throws.
    [[nodiscard]] Surface Picture(const ReadProgress& progress);

  private:
    void Start(const std::filesystem::path& program, int photo, int answers);
    void AwaitLine();
    void Take(std::string_view line);
    void End();
    [[noreturn]] void Refuse(const std::string& problem) const;
    [[noreturn]] void ExplainDeath();

    std::filesystem::path photo_;
    struct stat file_ {};
    Descriptor pixels_;
    Descriptor answers_;
    std::string unread_;  // the beginning of a line
    pid_t process_ = 0;   // 0 once it has ended
    int percent_ = 0;
    BitmapSize size_;     // 0 x 0 until known
    BitmapSize picture_;  // likewise
};

}  // namespace vendrel
