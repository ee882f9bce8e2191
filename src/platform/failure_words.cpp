// Sentences for failures of the system and of the library.
#include "platform/failure_words.h"

#include <exception>
#include <new>
#include <system_error>

#include "base/arithmetic_fault.h"
#include "base/use_problem.h"
#include "base/utf8.h"
#include "platform/file_store.h"

namespace lorvane {

namespace {

std::string sentence(const std::string& why) {
    return "Something unforeseen went wrong (" + why +
           "); check the names and folders that it uses, save your work, and try again.";
}

std::string wordsInFlight() {
    try {
        throw;
    } catch (const UseProblem& problem) {
        return problem.what();
    } catch (const FileProblem& problem) {
        return problem.what();
    } catch (const ArithmeticFault& fault) {
        return fault.what();
    } catch (const std::bad_alloc&) {
        return "There is not enough memory for this; save your work, close other programs, and try again.";
    } catch (const std::system_error& error) {
        return sentence(error.code().message());
    } catch (const std::exception& problem) {
        return sentence(problem.what());
    } catch (...) {
        return sentence("no reason was given");
    }
}

}  // namespace

// A name in a sentence may hold anything.
std::string failureWords() { return printable(wordsInFlight()); }

}  // namespace lorvane
