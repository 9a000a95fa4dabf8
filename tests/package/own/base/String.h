#error "This is a header of the program around galley."
