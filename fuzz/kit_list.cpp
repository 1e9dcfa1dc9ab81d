#include "kitset/kit_list.h"
#include "fuzz/reader.h"

namespace vendrel::fuzz {

const std::size_t kMemoryPerByte = 256;

void Read(Bytes bytes) {
    static const KitPaths paths(Folder(), {"some", "Easy"});
    const auto list = ReadKitList(FileWith("list.json", TextOf(bytes)));
    if (list) {
        (void)FormatKitList(*list, paths);
    }
}

}  // namespace vendrel::fuzz
