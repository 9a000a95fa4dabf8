#pragma once

/// What the tool tells its caller.
enum class ExitStatus {
    Rendered = 0,
    InputAtFault = 1,  ///< the document or a sheet
    Usage = 2,
    FileAtFault = 3,  ///< a file cannot be read or written
};
