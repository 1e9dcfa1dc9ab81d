#include "app/join_command.h"

#include <cstdlib>
#include <iostream>

#include "export/pdf_join.h"
#include "support/error.h"

namespace vendrel {

int RunJoinCommand(std::span<const std::string_view> words) {
    try {
        JoinPdfs({words.begin() + 1, words.end()}, words.front());
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::cerr << SentenceOf(error, std::string(words.front())) << std::endl;
        return EXIT_FAILURE;
    }
}

}  // namespace vendrel
