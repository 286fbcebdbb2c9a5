<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<TS version="2.1" language="de_DE">
</TS>
