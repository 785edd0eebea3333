#!/bin/sh
# Brings the translation files (.ts) up to date with the texts in the sources, and says what is left to do.
#
#   scripts/update-translations.sh [--drop-vanished] [--into DIR]
#
#   --drop-vanished   forget translations whose text is no longer in the sources; without it they stay in the
#                     files, marked, and serve again when the text comes back
#   --into DIR        leave the files of the tree alone and write updated copies to DIR
#
# Finished translations are never touched. New texts arrive as "unfinished": translate them in Qt Linguist or an
# editor, using the words of docs/glossary.md. Exit 0: all is translated; 1: something is unfinished or vanished;
# 2: wrong usage, or lupdate failed. LUPDATE names another lupdate than the one in PATH.
set -eu
cd "$(dirname "$0")/.."

languages='ru:ru_RU cn:zh_CN jp:ja_JP kr:ko_KR'
lupdate=${LUPDATE:-lupdate}
obsolete=
into=

say() { printf '%s\n' "update-translations: $*" >&2; }

while [ $# -gt 0 ]; do
    case $1 in
    --drop-vanished) obsolete=-no-obsolete ;;
    --into)
        [ $# -gt 1 ] || { say '--into needs a folder'; exit 2; }
        into=$2
        shift
        ;;
    *)
        say "unknown argument '$1'"
        exit 2
        ;;
    esac
    shift
done

command -v "$lupdate" >/dev/null || { say "there is no '$lupdate'; it comes with qttools5-dev-tools"; exit 2; }

marked() { grep -c "<translation type=\"$2\"" "$1" || true; }

# Names the texts that wait; the source stands in the line or lines before its translation.
show_marked() { sed -n '/<source>/h;/<source>/!{/<translation type="'"$2"'"/{g;s/ *<source>//;s/<\/source>//;s/^/    /p;};}' "$1"; }

status=0

# update ALIAS FOLDER SOURCES...: one file per language, FOLDER/ALIAS_<language>.ts
update() {
    alias=$1 folder=$2
    shift 2
    for language in $languages; do
        name=${alias}_${language%%:*}.ts
        file=$folder/$name
        if [ -n "$into" ]; then
            [ ! -f "$file" ] || cp "$file" "$into/$name"
            file=$into/$name
        fi
        # The include folders let lupdate find the class, and with it the context, of every tr().
        if ! output=$("$lupdate" $obsolete -locations none -I . -I host -source-language en_US \
            -target-language "${language#*:}" "$@" -ts "$file" 2>&1); then
            say "$output"
            exit 2
        fi
        for mark in unfinished vanished; do
            count=$(marked "$file" $mark)
            [ "$count" -gt 0 ] || continue
            status=1
            say "$file: $count $mark"
            show_marked "$file" $mark >&2
        done
    done
}

update palx_workstation resources/language workstation stack pattern project ui
update palx_host host/language host panel controller
exit $status
