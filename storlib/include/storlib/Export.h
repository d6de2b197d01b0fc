// Symbol visibility of the StorLib C++ API.
#pragma once

#define STORLIB_API __attribute__((visibility("default")))
