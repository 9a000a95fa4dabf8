# What the reference is told differently from the compiler. Lines keep their numbers.

# Functions that no class holds are listed only for a file that has a comment.
s|^#pragma once$|/// @file|
# What the compiler writes by itself needs no explanation.
s|^.*= default;$||
# Not a function that takes a text.
s|^(inline constexpr StyleProperty [A-Za-z_]+)\((.*)\);|\1{\2};|
# The base is the same template for another type, which is taken for a circle.
s|^class \[\[nodiscard\]\] Result : public Result<void> \{|class Result {|
