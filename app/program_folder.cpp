// app/program_folder.cpp - the same folder by both of its names, or none.
#include "app/program_folder.h"

#include "base/reason.h"
#include "base/text.h"
#include "files/data_folder.h"

#include <system_error>

namespace tallyhoop {

Result<std::filesystem::path> programFolder(const std::filesystem::path& asNamed,
                                            const std::filesystem::path& executable)
{
    const std::filesystem::path real = executable.parent_path();
    std::error_code error;
    const bool isRight =
        executable.empty() ? !asNamed.empty() : std::filesystem::equivalent(asNamed, real, error) && !error;
    if (isRight)
        return asNamed;
    if (error && asNamed == real)
        return Failure{joinLines({"Tallyhoop cannot work in its folder, because the system does not lead there:", " ",
                                  shown(real), reasonOf(error), " ", "Nothing has been read or written."})};
    return Failure{
        joinLines({"Tallyhoop cannot work in its folder, because the name of the folder, or of one around it,",
                   "has characters that cannot be read (they are not in UTF-8):", " ", shown(real), " ",
                   "Rename the folder, and start the program again. Nothing has been read or written."})};
}

} // namespace tallyhoop
