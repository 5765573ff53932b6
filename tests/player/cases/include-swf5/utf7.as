trace("+MEswam8iW1cwvYho");
