# SPDX-License-Identifier: GPL-3.0-or-later
/^\.\\" The commands stand here/ {
r commands.1
d
}
