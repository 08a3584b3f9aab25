#pragma once

/// Form files of Qt Designer, read and written without Qt.

#include <zor/forms/form.h>
#include <zor/forms/form_error.h>
