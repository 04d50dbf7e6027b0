#!/usr/bin/env bash
# Usage: qr_codes.sh FOLDER_OF_PICTURES. A phone's camera must read the addresses off the drawn QR pictures, at
# both resolutions.
set -u
failures=0

for name in ios android; do
    for form in .png @2x.png; do
        read_address=$(zbarimg --quiet --raw "$1/QRCode/$name$form" 2>/dev/null)
        if [[ $read_address != "https://example.com/get/$name" ]]; then
            echo "FAILED: $name$form reads as '$read_address'"
            failures=$((failures + 1))
        fi
    done
done
exit $((failures > 0))
