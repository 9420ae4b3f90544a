// The Windows headers this layer uses, included in one place.
//
// The platform seams have members named like Win32's A/W macros
// (UserInterface::MessageBox, ObjectFactory::GetObject,
// SystemServices::ShellExecute); those macros are removed here so that every
// translation unit sees the same names. Call the Win32 functions by their
// explicit W or A names.
#pragma once

#include <oaidl.h>
#include <ocidl.h>
#include <ole2.h>
#include <oleauto.h>
#include <olectl.h>
#include <shellapi.h>
#include <shlobj.h>
#include <windows.h>

#undef MessageBox
#undef GetObject
#undef ShellExecute
