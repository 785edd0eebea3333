! Characters, numbers and texts that are none.
GLOBAL PROC main()
    VAR int a := 12abc          !! 18 "12abc" is no number
    VAR double b := 1.5e        !! 21 "1.5e" is no number
    VAR string c := "open       !! 21 the text has no closing quote in its line
    a := 99999999999999999999   !! 10 the number "99999999999999999999" is too large for an int
    b := 1e999                  !! 10 the number "1e999" is too large or too small for a double
    a := a § 2                  !! 12 the character "§" has no meaning here
    a = 2                       !! 7 "=" has no meaning: "==" compares, ":=" assigns
    c := "ä ö""ü"
    IF a == 1 AND c == "€" $    !! 28 the character "$" has no meaning here
    ENDIF
    a_name_that_is_longer_than_sixty_four_characters_is_not_allowed_at_all := 1 !! 5 the name "a_name_that_is_longer_than_sixty_four_characters_is_not_allowed_..." has more than 64 characters
ENDPROC
